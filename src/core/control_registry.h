// Every form's registration of its controls. Each subsystem defines the function of its forms;
// RegisterAllControls calls them all.
#pragma once

namespace vn {

class ControlTable;

void RegisterMainFormControls(ControlTable& t);
void RegisterSetupControls(ControlTable& t);
void RegisterSectionControls(ControlTable& t);
void RegisterAnalysisControls(ControlTable& t);
void RegisterResultsControls(ControlTable& t);
void RegisterControlsChecks(ControlTable& t);
void RegisterBucklingControls(ControlTable& t);

void RegisterDimensionFieldControls(ControlTable& t);

void RegisterAllControls(ControlTable& t);

}  // namespace vn
