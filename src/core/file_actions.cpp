#include "core/file_actions.h"

#include "core/control_registry.h"
#include "core/format.h"
#include "core/project_file.h"
#include "core/recalculate.h"
#include "core/safe_file.h"
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

// The message of a failed file action, with the path and the system's reason for a front end that
// can show them (the command line).
EventResult FileMessage(const std::string& text, const char* verb, const std::string& path,
                        const std::string& reason) {
  EventResult r = Message(text);
  r.fileError = std::string("cannot ") + verb + " '" + path + "': " + reason;
  return r;
}

EventResult CannotSave(const std::string& path, const std::string& reason) {
  return FileMessage("can't save file - " + path, "write", path, reason);
}

// A file that could not be read at all: nothing of the record has changed.
EventResult CannotRead(FileResult result, const std::string& path, const std::string& reason) {
  if (result == FileResult::TooLarge)
    return FileMessage("Input file not compatible with this version ", "read", path, reason);
  return FileMessage("can't find file - " + path, "read", path, reason);
}

// Reading a project: the path now stands in the record; the dialogs close; the record is shown.
EventResult AfterRead(State& s, FileResult result, const std::string& path, const std::string& reason) {
  if (result == FileResult::NotFound || result == FileResult::TooLarge)
    return CannotRead(result, path, reason);
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
  // What the read gave, for a caller that must not go on with the project as it was (a script).
  FileResult result = FileResult::NotFound;
  struct Tell {
    FileResult& result;
    FileResult* out;
    ~Tell() {
      if (out) *out = result;
    }
  } tell{result, readResult};
  // The file is read whole before anything changes: a path that is missing, a folder, a device or
  // a file of megabytes ends the action with the record, the caption and the recent list as they were.
  std::string text, reason;
  const ReadStatus read = ReadFileBounded(path, kProjectFileLimit, &text, &reason);
  if (read != ReadStatus::Ok) {
    result = read == ReadStatus::TooLarge ? FileResult::TooLarge : FileResult::NotFound;
    return CannotRead(result, path, reason);
  }
  if (path == p.fileName) {
    result = ReadProjectText(s, text);
  } else {
    p.fileName = path;
    result = ReadProjectText(s, text);
    // A failed read ends the action here: the caption and the recent list stay as they were.
    if (result == FileResult::Ok) {
      BuildCaption(s);
      PromoteRecent(s, path);
    }
  }
  if (result == FileResult::Ok) s.currentDir = FolderOf(path);
  return AfterRead(s, result, path, reason);
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
  std::string reason;
  FileResult result = ReadProject(s, path, &reason);
  if (result == FileResult::Ok) s.currentDir = FolderOf(path);
  return AfterRead(s, result, path, reason);
}

EventResult SaveAction(State& s, const std::string& path) {
  Project& p = s.project;
  if (p.fileName != "New File") {
    std::string reason;
    if (WriteProject(s, p.fileName, &reason) != FileResult::Ok) return CannotSave(p.fileName, reason);
    return EventResult{};
  }
  if (path.empty()) return EventResult{};  // cancelled
  std::string reason;
  if (WriteProject(s, path, &reason) != FileResult::Ok) return CannotSave(path, reason);
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
  std::string reason;
  if (WriteProject(s, path, &reason) != FileResult::Ok) return CannotSave(path, reason);
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
      // A failed save ends the action: the project is not dropped.
      std::string reason;
      if (WriteProject(s, p.fileName, &reason) != FileResult::Ok) return CannotSave(p.fileName, reason);
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
