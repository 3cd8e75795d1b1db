// Contest files written down in tests: lines instead of bytes.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

/// The lines joined, each ended by CR LF.
inline std::string fileOf(std::initializer_list<std::string_view> lines) {
  std::string bytes;
  for (const std::string_view line : lines) bytes.append(line).append("\r\n");
  return bytes;
}

/// A small contest with every kind of line, in the words of the file.
inline std::string smallFile() {
  return fileOf({"contestName:\tCounty Fair",
                 "divisionName:\tSenior Division",
                 "contestDate:\tJuly 04, 2026",
                 "startNum:\t101",
                 "numPerTeam:\t2",
                 "numToScore:\t1",
                 "reportPercent:\t1",
                 "numToReport:\t10",
                 "numGroups:\t3",
                 "totalNumPerTeam:\t3",
                 "numReasonsGroups:\t2",
                 "categories:\tBeef\tSwine",
                 "~~~~~Classes~~~~~",
                 "2",
                 "Market Steers\tYes\tNo\tC\t2,5,3\t0",
                 "\tNo\tYes\t \t0,0,0\t1",
                 "~~~~~Contestants~~~~~",
                 "3",
                 "101\tAnn Lee\t1\t0",
                 "102\tBen Ode\t-1\t-1",
                 "103\t",
                 "~~~~~Teams~~~~~",
                 "1",
                 "Clover\t \t101\t102\t103",
                 "~~~~~Scores~~~~~",
                 "6",
                 "101\t0\tC\t50\t44\t0",
                 "101\t1\tZ\t0\t0\t38",
                 "102\t0\tX\t-2\t0\t0",
                 "102\t1\t \t0\t0\t0",
                 "103\t0\t \t0\t0\t0",
                 "103\t1\t \t0\t0\t0",
                 "0000-0000-0000-0000",
                 "0000-0000-0000-0000"});
}

/// The text with the first occurrence of `from` replaced; unchanged when there is none.
inline std::string replaced(std::string text, std::string_view from, std::string_view to) {
  const std::size_t at = text.find(from);
  return at == std::string::npos ? text : text.replace(at, from.size(), to);
}
