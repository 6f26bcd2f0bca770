// The controls of the results: the main form's "More Results" button and its dialog.
#include <string>
#include <string_view>

#include "analysis/member_analysis.h"
#include "core/control_registry.h"
#include "core/events.h"
#include "core/recalculate.h"
#include "core/state.h"
#include "results/detail_table.h"

namespace vn {

namespace {

const char* const kDetailForm = "detailedresult";

// "Export": the grid as it stands, cell by cell, to the spreadsheet of the front end; the text of
// the event is the target. Any failure ends in the one message.
EventResult ExportDetailGrid(State& s, std::string_view path) {
  EventResult r;
  if (!s.resultsValid) {
    r.refused = true;
    r.message = kNoResultsText;
    return r;
  }
  if (s.view.detailGrid.empty()) BuildDetailTable(s);
  std::string error;
  if (!s.spreadsheet || path.empty() || !s.spreadsheet(s, std::string(path), &error)) {
    r.refused = true;
    r.message = kExportFailedText;
    r.fileError = error;
  }
  return r;
}

}  // namespace

void RegisterResultsControls(ControlTable& t) {
  AddControl(t, "", "CmdResult", [](State& s, int, std::string_view) {
    ShowDialog(s, kDetailForm);
    BuildDetailTable(s);  // the dialog gets the focus
    return EventResult{};
  });
  AddControl(t, kDetailForm, "Activate", [](State& s, int, std::string_view) {
    BuildDetailTable(s);
    return EventResult{};
  });
  AddControl(t, kDetailForm, "ok", [](State& s, int, std::string_view) {
    HideDialog(s, kDetailForm);
    return EventResult{};
  });
  AddControl(t, kDetailForm, "cmdDetailedResult",
             [](State& s, int, std::string_view text) { return ExportDetailGrid(s, text); });
}

}  // namespace vn
