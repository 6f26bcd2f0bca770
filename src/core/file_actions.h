// The file menu: New, Open, Save, Save As, the recent files, and the main form's caption.
#pragma once

#include <string>

#include "core/project_file.h"

#include "core/events.h"

namespace vn {

struct State;

inline constexpr const char* kRecentApp = "Varnelt_ns";
inline constexpr const char* kRecentSection = "Recent Files";
inline constexpr const char* kSaveQuestion = "Do you want to save the actual project?";

// The recent-file entries of the File menu from the settings store.
void BuildRecentMenu(State& s);
void PushRecent(State& s, const std::string& path);
void PromoteRecent(State& s, const std::string& path);
void MoveRecentToTop(State& s, int index, const std::string& path);

// The actions. `path` is what the file dialog returned; empty means the dialog was cancelled.
// `result`, if given, receives how the read ended (a file of values of the wrong kind ends
// silently on the form, and a script needs to know it).
EventResult OpenAction(State& s, const std::string& path, FileResult* result = nullptr);
EventResult SaveAction(State& s, const std::string& path);
EventResult SaveAsAction(State& s, const std::string& path);
EventResult RecentFileAction(State& s, int index);
// `answer` to the question on a saved project: "Yes", "No" or "Cancel"; empty asks (question set).
EventResult NewAction(State& s, const std::string& answer);

void RegisterFileMenuControls(ControlTable& t);

}  // namespace vn
