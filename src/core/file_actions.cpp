#include "core/file_actions.h"

#include <filesystem>

#include "core/control_registry.h"
#include "core/format.h"
#include "core/project_file.h"
#include "core/recalculate.h"
#include "core/state.h"
#include "design/design_basis.h"
#include "sections/dispatch.h"

namespace vn {

namespace {

std::string RecentKey(int i) { return "RecentFile" + std::to_string(i); }

std::string GetRecent(State& s, int i) { return s.settings->Get(kRecentApp, kRecentSection, RecentKey(i)); }
void SetRecent(State& s, int i, const std::string& v) {
  s.settings->Set(kRecentApp, kRecentSection, RecentKey(i), v);
}

std::string FolderOf(const std::string& path) {
  auto slash = path.find_last_of("/\\");
  return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

EventResult Message(const std::string& text) {
  EventResult r;
  r.refused = true;
  r.message = text;
  return r;
}

// Reading a project: the path now stands in the record; the dialogs close; the record is shown.
EventResult AfterRead(State& s, FileResult result, const std::string& path) {
  if (result == FileResult::NotFound) return Message("can't find file - " + path);
  if (result == FileResult::PastEnd) return Message("Input file not compatible with this version ");
  if (result != FileResult::Ok) return EventResult{};
  s.view.openDialogs.clear();
  try {
    SelectYieldStrength(s, s.project.steelGrade);
  } catch (const CalcFault&) {
    // A grade table with no strengths: the recalculation below shows the message.
  }
  RefreshMainForm(s);
  Recalculate(s);
  return EventResult{};
}

}  // namespace

void BuildRecentMenu(State& s) {
  if (GetRecent(s, 1).empty()) return;
  int i = 0;
  for (const auto& entry : s.settings->GetAll(kRecentApp, kRecentSection)) {
    ++i;
    if (i > 4) break;
    s.view.visible["mnurecentfile(0)"] = true;
    s.view.text["mnurecentfile(" + std::to_string(i) + ")"] = FormatNumber(i, "#") + ". " + entry.second;
    s.view.visible["mnurecentfile(" + std::to_string(i) + ")"] = true;
  }
}

void PushRecent(State& s, const std::string& path) {
  for (int i = 3; i >= 1; --i) {
    std::string v = GetRecent(s, i);
    if (!v.empty()) SetRecent(s, i + 1, v);
  }
  SetRecent(s, 1, path);
  BuildRecentMenu(s);
}

void PromoteRecent(State& s, const std::string& path) {
  int position = 0;
  for (int i = 1; i <= 4; ++i) {
    auto it = s.view.text.find("mnurecentfile(" + std::to_string(i) + ")");
    if (it == s.view.text.end() || it->second.size() < 3) continue;
    if (it->second.substr(3) == path) {
      position = i;
      break;
    }
  }
  if (position == 0) {
    PushRecent(s, path);
    return;
  }
  for (int i = position - 1; i >= 1; --i) SetRecent(s, i + 1, GetRecent(s, i));
  SetRecent(s, 1, path);
  BuildRecentMenu(s);
}

void MoveRecentToTop(State& s, int index, const std::string& path) {
  for (int i = index - 1; i >= 1; --i) SetRecent(s, i + 1, GetRecent(s, i));
  SetRecent(s, 1, path);
}

EventResult OpenAction(State& s, const std::string& path, FileResult* readResult) {
  if (path.empty()) return EventResult{};  // cancelled
  Project& p = s.project;
  FileResult result = FileResult::NotFound;
  struct Tell {
    FileResult& result;
    FileResult* out;
    ~Tell() {
      if (out) *out = result;
    }
  } tell{result, readResult};
  if (path == p.fileName) {
    result = ReadProject(s, path);
  } else {
    if (!std::filesystem::exists(path)) return Message("can't find file - " + path);
    p.fileName = path;
    result = ReadProject(s, path);
    // A failed read ends the action here: the caption and the recent list stay as they were.
    if (result == FileResult::Ok) {
      BuildCaption(s);
      PromoteRecent(s, path);
    }
  }
  if (result == FileResult::Ok) s.currentDir = FolderOf(path);
  return AfterRead(s, result, path);
}

EventResult RecentFileAction(State& s, int index) {
  auto it = s.view.text.find("mnurecentfile(" + std::to_string(index) + ")");
  if (it == s.view.text.end() || it->second.size() < 3) return EventResult{};
  const std::string path = it->second.substr(3);
  Project& p = s.project;
  if (index != 0) {
    if (path == p.fileName) {
      BuildCaption(s);
    } else {
      p.fileName = path;
      BuildCaption(s);
      MoveRecentToTop(s, index, path);
      BuildRecentMenu(s);
    }
  }
  FileResult result = ReadProject(s, path);
  if (result == FileResult::Ok) s.currentDir = FolderOf(path);
  return AfterRead(s, result, path);
}

EventResult SaveAction(State& s, const std::string& path) {
  Project& p = s.project;
  if (p.fileName != "New File") {
    FileResult r = WriteProject(s, p.fileName);
    if (r == FileResult::NotFound) return Message("can't save file - " + p.fileName);
    return EventResult{};
  }
  if (path.empty()) return EventResult{};  // cancelled
  FileResult r = WriteProject(s, path);
  if (r == FileResult::NotFound) return Message("can't save file - " + path);
  if (r != FileResult::Ok) return EventResult{};
  s.currentDir = FolderOf(path);
  // fileName stays "New File": the caption doesn't change and the next Save asks again.
  PushRecent(s, path);
  return EventResult{};
}

EventResult SaveAsAction(State& s, const std::string& path) {
  if (path.empty()) return EventResult{};  // cancelled
  Project& p = s.project;
  const bool same = path == p.fileName;
  if (!same) p.fileName = path;
  s.view.caption = "Varnelt EC3 - " + CodeDisplayName(p.codeIndex) + ": " + p.fileName;
  FileResult r = WriteProject(s, path);
  if (r == FileResult::NotFound) return Message("can't save file - " + path);
  if (r != FileResult::Ok) return EventResult{};
  s.currentDir = FolderOf(path);
  if (!same) PushRecent(s, path);
  return EventResult{};
}

EventResult NewAction(State& s, const std::string& answer) {
  Project& p = s.project;
  if (p.fileName != "New File") {
    if (answer.empty()) {
      EventResult r;
      r.question = kSaveQuestion;
      return r;
    }
    if (answer == "Cancel" || answer == "cancel") return EventResult{};
    if (answer == "Yes" || answer == "yes") {
      FileResult w = WriteProject(s, p.fileName);
      if (w == FileResult::NotFound) return Message("can't save file - " + p.fileName);
    } else if (answer != "No" && answer != "no") {
      return Message("Answer Yes, No or Cancel to: " + std::string(kSaveQuestion));
    }
  }
  NewProject(s);
  Recalculate(s);
  return EventResult{};
}

void RegisterFileMenuControls(ControlTable& t) {
  AddControl(t, "", "mnunew",
             [](State& s, int, std::string_view text) { return NewAction(s, std::string(text)); });
  AddControl(t, "", "mnuopen",
             [](State& s, int, std::string_view text) { return OpenAction(s, std::string(text)); });
  AddControl(t, "", "mnusave", [](State& s, int, std::string_view text) {
    // The fields of the main form are in the record already: each edit stored its text.
    return SaveAction(s, std::string(text));
  });
  AddControl(t, "", "mnusaveas",
             [](State& s, int, std::string_view text) { return SaveAsAction(s, std::string(text)); });
  AddControl(
      t, "", "mnurecentfile",
      [](State& s, int index, std::string_view) { return RecentFileAction(s, index); }, 0, 4);
  AddControl(t, "", "mnuexit", [](State&, int, std::string_view) {
    EventResult r;
    r.exit = true;
    return r;
  });
}

}  // namespace vn
