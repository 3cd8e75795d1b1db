#include "app/reasons_commands.h"

#include "setup/reasons_order_report.h"
#include "setup/reasons_sheets.h"

namespace {

std::optional<std::string> sheetAskedFor(const Contest& contest, const ReportRequest& request,
                                         ReasonsSheet sheet) {
  if (!request.classIndex) return std::nullopt;
  return reasonsSheet(contest, sheet, *request.classIndex);
}

}  // namespace

std::optional<std::string> plainReasonsOrder(const Contest& contest,
                                             const ReportRequest& /*request*/) {
  return reasonsOrderReport(contest, ReasonsOrderForm::plain);
}

std::optional<std::string> roomReasonsOrder(const Contest& contest,
                                            const ReportRequest& /*request*/) {
  return reasonsOrderReport(contest, ReasonsOrderForm::room);
}

std::optional<std::string> reasonsOrderSheet(const Contest& contest, const ReportRequest& request) {
  return sheetAskedFor(contest, request, ReasonsSheet::order);
}

std::optional<std::string> reasonsVerificationSheet(const Contest& contest,
                                                    const ReportRequest& request) {
  return sheetAskedFor(contest, request, ReasonsSheet::verification);
}
