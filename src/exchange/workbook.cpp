#include <algorithm>
#include <array>
#include <deque>
#include <functional>
#include <string>
#include <unordered_map>
#include <utility>

#include "exchange/table.h"
#include "exchange/zip_archive.h"
#include "text/number.h"
#include "text/windows_1252.h"

namespace scorvane {

namespace {

constexpr std::string_view kDeclaration =
    "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n";
constexpr std::string_view kMain = "http://schemas.openxmlformats.org/spreadsheetml/2006/main";
constexpr std::string_view kRelations =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships";
constexpr std::string_view kPackage = "http://schemas.openxmlformats.org/package/2006/";
constexpr std::string_view kTypePrefix =
    "application/vnd.openxmlformats-officedocument.spreadsheetml.";

std::string& operator<<(std::string& out, std::string_view text) {
  return out.append(text);
}
std::string& operator<<(std::string& out, std::size_t number) {
  appendNumber(out, static_cast<std::int64_t>(number));
  return out;
}

// A sheet of the workbook: rows of one table.
struct Part {
  const Table* sheet = nullptr;
  std::string name;
  std::size_t firstRow = 0;
  std::size_t rows = 0;
};

std::vector<Part> partsOf(const std::vector<Table>& sheets, std::size_t room) {
  std::vector<Part> parts;
  for (const Table& sheet : sheets) {
    for (std::size_t first = 0; first == 0 || first < sheet.rows; first += room) {
      std::string name = sheet.name;
      if (first > 0) name << " " << first / room + 1;
      parts.push_back({&sheet, std::move(name), first, std::min(room, sheet.rows - first)});
    }
  }
  return parts;
}

// Every text is kept once for the whole workbook, and cells name it by its number.
class SharedTexts {
 public:
  explicit SharedTexts(std::size_t longest) : longest_(longest) { numbers_.reserve(kRecents); }

  void appendHeading(std::string& out, std::string_view text) {
    out << "<c s=\"1\" t=\"s\"><v>" << find(text) << "</v></c>";
  }
  // Most texts are single letters, or those of the rows before: finding them, as their cells are
  // written, without a look at their letters makes a large workbook a third faster.
  void appendCell(std::string& out, std::string_view text) {
    if (text.size() == 1) {
      std::string& cell = letters_.at(static_cast<unsigned char>(text.front()));
      if (cell.empty()) writeCell(cell, find(text));
      out += cell;
      return;
    }
    Recent& recent = recents_[std::hash<const char*>{}(text.data()) / 4 % recents_.size()];
    if (recent.text.data() != text.data() || recent.text.size() != text.size()) {
      recent = {text, find(text)};
    }
    writeCell(out, recent.number);
  }
  void writeTo(std::string& out) const {
    out << kDeclaration << "<sst xmlns=\"" << kMain << "\" uniqueCount=\"" << texts_.size()
        << "\">";
    for (const std::string& text : texts_) {
      out << "<si><t xml:space=\"preserve\">";
      appendText(out, text);
      out << "</t></si>";
    }
    out << "</sst>";
  }

 private:
  static void writeCell(std::string& out, std::size_t number) {
    out << "<c t=\"s\"><v>" << number << "</v></c>";
  }
  std::size_t find(std::string_view text) {
    text = text.substr(0, longest_);
    const auto found = numbers_.find(text);
    if (found != numbers_.end()) return found->second;
    const std::size_t number = texts_.size();
    numbers_.emplace(texts_.emplace_back(text), number);
    return number;
  }

  // Readers take _x0041_ for the character of that number, so such an underscore is written that
  // way itself.
  static void appendText(std::string& out, std::string_view text) {
    constexpr std::string_view kDigits = "0123456789abcdefABCDEF";
    for (std::size_t at = 0; (at = text.find("_x")) != std::string_view::npos;) {
      const bool isCode =
          text.size() > at + 6 && text[at + 6] == '_' &&
          text.substr(at + 2, 4).find_first_not_of(kDigits) == std::string_view::npos;
      appendMarkup(out, text.substr(0, at));
      out << (isCode ? "_x005F_x" : "_x");
      text.remove_prefix(at + 2);
    }
    appendMarkup(out, text);
  }

  struct Recent {
    std::string_view text;
    std::size_t number = 0;
  };
  static constexpr std::size_t kRecents = 1U << 15U;

  std::size_t longest_;
  std::array<std::string, 256> letters_;
  std::vector<Recent> recents_ = std::vector<Recent>(kRecents);
  std::deque<std::string> texts_;
  std::unordered_map<std::string_view, std::size_t> numbers_;
};

class SheetWriter {
 public:
  SheetWriter(std::string& out, SharedTexts& texts, const Part& part, std::size_t columns)
      : out_(out),
        texts_(texts),
        part_(part),
        columns_(std::min(part.sheet->headings.size(), columns)) {}

  void write() {
    out_ << kDeclaration << "<worksheet xmlns=\"" << kMain << "\"><sheetViews><sheetView "
         << "workbookViewId=\"0\"><pane ySplit=\"1\" topLeftCell=\"A2\" activePane=\"bottomLeft\" "
         << "state=\"frozen\"/></sheetView></sheetViews><cols>";
    writeWidths();
    out_ << "</cols><sheetData>";
    out_ << "<row>";
    for (std::size_t k = 0; k < columns_; ++k) {
      texts_.appendHeading(out_, part_.sheet->headings[k]);
    }
    out_ << "</row>";
    for (std::size_t row = 0; row < part_.rows; ++row) {
      cells_.clear();
      part_.sheet->fill(part_.firstRow + row, cells_);
      writeRow();
    }
    out_ << "</sheetData></worksheet>";
  }

 private:
  // By the headings and the first rows, within what is well to read.
  void writeWidths() {
    constexpr std::size_t kLookedAt = 1000, kLeast = 6, kMost = 40;
    std::vector<std::size_t> widths;
    for (std::size_t k = 0; k < columns_; ++k) {
      widths.push_back(std::max(kLeast, part_.sheet->headings[k].size()));
    }
    for (std::size_t row = 0; row < std::min(part_.rows, kLookedAt); ++row) {
      cells_.clear();
      part_.sheet->fill(part_.firstRow + row, cells_);
      for (std::size_t k = 0; k < std::min(cells_.size(), widths.size()); ++k) {
        widths[k] = std::max(widths[k], cells_[k].text.size());
      }
    }
    cells_.clear();
    for (std::size_t k = 0; k < widths.size(); ++k) {
      out_ << "<col min=\"" << k + 1 << "\" max=\"" << k + 1 << "\" width=\""
           << std::min(widths[k], kMost) + 2 << "\" customWidth=\"1\"/>";
    }
  }

  // Cells say what they hold and not where they are: they follow each other, blank ones too.
  void writeRow() {
    out_ << "<row>";
    std::size_t count = std::min(cells_.size(), columns_);
    while (count > 0 && cells_[count - 1].kind == Cell::Kind::blank) --count;
    for (std::size_t k = 0; k < count; ++k) {
      const Cell& cell = cells_[k];
      if (cell.kind == Cell::Kind::blank) {
        out_ << "<c/>";
      } else if (cell.kind == Cell::Kind::text) {
        texts_.appendCell(out_, cell.text);
      } else {
        writeNumber(cell);
      }
    }
    out_ << "</row>";
  }
  // Most numbers are scores: their cells are written once and copied.
  void writeNumber(const Cell& cell) {
    const auto write = [&](std::string& out) {
      out << "<c><v>";
      appendNumeral(out, cell);
      out << "</v></c>";
    };
    const auto value = static_cast<std::size_t>(cell.value);
    if (cell.hasDecimal || value >= scores_.size()) {
      write(out_);
    } else {
      if (scores_[value].empty()) write(scores_[value]);
      out_ += scores_[value];
    }
  }

  std::string& out_;
  SharedTexts& texts_;
  const Part& part_;
  std::size_t columns_;
  std::vector<Cell> cells_;
  std::array<std::string, 64> scores_;
};

// The workbook's list of its sheets, the relations that find their files, and the types of these.
struct Contents {
  std::string sheets, relations, types;
};

void addRelation(std::string& out, std::size_t number, std::string_view kind,
                 std::string_view target) {
  out << "<Relationship Id=\"rId" << number << "\" Type=\"" << kRelations << "/" << kind
      << "\" Target=\"" << target << "\"/>";
}

void addType(std::string& out, std::string_view file, std::string_view kind) {
  out << "<Override PartName=\"/xl/" << file << "\" ContentType=\"" << kTypePrefix << kind
      << "+xml\"/>";
}

Contents contentsOf(const std::vector<Part>& parts) {
  Contents contents;
  std::size_t number = 0;
  for (const Part& part : parts) {
    ++number;
    std::string file = "worksheets/sheet";
    file << number << ".xml";
    contents.sheets << "<sheet name=\"" << part.name << "\" sheetId=\"" << number << "\" r:id=\"rId"
                    << number << "\"/>";
    addRelation(contents.relations, number, "worksheet", file);
    addType(contents.types, file, "worksheet");
  }
  addRelation(contents.relations, number + 1, "styles", "styles.xml");
  addRelation(contents.relations, number + 2, "sharedStrings", "sharedStrings.xml");
  addType(contents.types, "workbook.xml", "sheet.main");
  addType(contents.types, "styles.xml", "styles");
  addType(contents.types, "sharedStrings.xml", "sharedStrings");
  return contents;
}

constexpr std::string_view kStyles =
    "<fonts count=\"2\"><font><sz val=\"11\"/><name val=\"Calibri\"/></font><font><b/><sz "
    "val=\"11\"/><name val=\"Calibri\"/></font></fonts><fills count=\"2\"><fill><patternFill "
    "patternType=\"none\"/></fill><fill><patternFill patternType=\"gray125\"/></fill></fills>"
    "<borders count=\"1\"><border><left/><right/><top/><bottom/><diagonal/></border></borders>"
    "<cellStyleXfs count=\"1\"><xf/></cellStyleXfs><cellXfs count=\"2\"><xf xfId=\"0\"/><xf "
    "fontId=\"1\" xfId=\"0\" applyFont=\"1\"/></cellXfs><cellStyles count=\"1\"><cellStyle "
    "name=\"Normal\" xfId=\"0\" "
    "builtinId=\"0\"/></cellStyles></styleSheet>";

void addRelations(ZipArchive& archive, std::string_view name, std::string_view relations) {
  archive.beginFile(name) << kDeclaration << "<Relationships xmlns=\"" << kPackage
                          << "relationships\">" << relations << "</Relationships>";
  archive.endFile();
}

void addDirectory(ZipArchive& archive, const std::vector<Part>& parts) {
  const Contents contents = contentsOf(parts);
  archive.beginFile("[Content_Types].xml")
      << kDeclaration << "<Types xmlns=\"" << kPackage << "content-types\">"
      << "<Default Extension=\"rels\" ContentType=\"application/vnd.openxmlformats-package."
      << "relationships+xml\"/><Default Extension=\"xml\" ContentType=\"application/xml\"/>"
      << contents.types << "</Types>";
  archive.endFile();
  std::string root;
  addRelation(root, 1, "officeDocument", "xl/workbook.xml");
  addRelations(archive, "_rels/.rels", root);
  archive.beginFile("xl/workbook.xml")
      << kDeclaration << "<workbook xmlns=\"" << kMain << "\" xmlns:r=\"" << kRelations
      << "\"><sheets>" << contents.sheets << "</sheets></workbook>";
  archive.endFile();
  addRelations(archive, "xl/_rels/workbook.xml.rels", contents.relations);
  archive.beginFile("xl/styles.xml")
      << kDeclaration << "<styleSheet xmlns=\"" << kMain << "\">" << kStyles;
  archive.endFile();
}

std::size_t expectedSize(const std::vector<Part>& parts) {
  constexpr std::size_t kPerCell = 22, kMost = 64U << 20U;
  std::size_t cells = 1000;
  for (const Part& part : parts) cells += part.rows * part.sheet->headings.size();
  return std::min(cells * kPerCell, kMost);
}

}  // namespace

std::string workbookBytes(const std::vector<Table>& sheets, const SheetLimits& limits) {
  const std::vector<Part> parts = partsOf(sheets, limits.rows - 1);
  ZipArchive archive(expectedSize(parts));
  addDirectory(archive, parts);
  SharedTexts texts(limits.text);
  std::size_t number = 0;
  for (const Part& part : parts) {
    std::string name = "xl/worksheets/sheet";
    name << ++number << ".xml";
    SheetWriter(archive.beginFile(name), texts, part, limits.columns).write();
    archive.endFile();
  }
  texts.writeTo(archive.beginFile("xl/sharedStrings.xml"));
  archive.endFile();
  return archive.finish();
}

}  // namespace scorvane
