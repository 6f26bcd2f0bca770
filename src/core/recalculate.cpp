#include "core/recalculate.h"

#include "core/pipeline.h"
#include "core/state.h"
#include "graphics/section_figure.h"

#include <cmath>
#include <string>

namespace vn {

namespace {

// A ratio that is negative, not a number or infinite compares as nothing: it is a failed run
// (an axial force past the critical one makes 1 - N/Ncr negative), never a green line.
void CheckRatio(double ratio) {
  if (!std::isfinite(ratio) || ratio < 0) throw CalcFault("ratio out of its range");
}

void CheckRatios(const State& s) {
  const Checks& k = s.checks;
  for (size_t g = 1; g < k.IRsec.size(); ++g) CheckRatio(k.IRsec[g]);
  CheckRatio(k.IRbuckY);
  CheckRatio(k.IRbuckZ);
  CheckRatio(k.IRbuckLT);
  CheckRatio(s.analysis.IRsection);
  CheckRatio(s.analysis.IRbuckling);
}

enum class Reached { Nothing, Section, SectionShown, Figure };

// What a failed run leaves on show: the results of its own stages that ended, nothing of an
// earlier run. The summary, the charts, the member figure, the capacity texts and the table of
// detailed results go; the section values and its figure go too when their stage did not end.
void VoidResults(State& s, Reached reached) {
  View& v = s.view;
  v.summary.clear();
  v.verdict.clear();  // no verdict on results that are not there
  v.verdictColour = 0;
  v.detailGrid.clear();
  v.detailGridBold.clear();
  for (const char* picture : {"PicLoadZ", "PicMy", "PicLoadY", "PicMz", "pic11"}) v.pictures.erase(picture);
  for (const char* label : {"ovplzrd", "ovbzrd", "owebcc", "obcy", "obcz", "endstiff.ovbrzd",
                            "Modal_ns.massa", "Modal_ns.mod1", "Modal_ns.mod2", "Modal_ns.mod3"})
    if (v.text.count(label)) v.text[label].clear();
  if (reached < Reached::SectionShown) v.sectionValues.clear();
  if (reached < Reached::Figure) {
    const std::string box = SectionFigureBox(s.project.ProfileType);
    if (!box.empty()) v.pictures.erase(box);
  }
}

}  // namespace

void Recalculate(State& s) {
  Project& p = s.project;
  ++s.recalcCount;
  s.resultsValid = false;
  // The frequencies belong to the run that computes them: a run without the modal stage (the box
  // ticked since, which does not recalculate) has none, rather than another member's.
  s.analysis.ModalMass = 0;
  s.analysis.ModalFreq.fill(0);
  Reached reached = Reached::Nothing;
  // The trap: any fault of a stage ends the run at the message below.
  try {
    p.calcError = 0;
    s.view.txtErrorVisible = false;
    // Without a front end nothing is drawn and no dialog shown: no picture or value of an earlier
    // run may stand beside these results.
    if (s.headless) {
      s.view.pictures.clear();
      s.view.sectionValues.clear();
    }

    ComputeSection(s);
    reached = Reached::Section;
    ShowSectionValues(s);  // these two, the charts and the member figure draw nothing headless
    reached = Reached::SectionShown;
    DrawSectionFigure(s);
    reached = Reached::Figure;
    MemberAnalysis(s);
    if (p.calcError == -1) throw CalcFault("calcError");
    RunControls(s);
    if (p.calcError == -1) throw CalcFault("calcError");
    CheckRatios(s);
    DrawCharts(s);
    if (p.chModal == 1) ModalAnalysis(s);
    ShowWebText(s);
    ShowControls(s);
    UpdateMainFormState(s);
    // The section values once more: the shear resistances among them come from the controls, and
    // an open dialog must not show those of the run before. The same for the curve letters beside
    // the buckling curve lists, which the refresh of the main form would show only later.
    ShowSectionValues(s);
    s.view.text["obcy"] = s.checks.curveTextY;
    s.view.text["obcz"] = s.checks.curveTextZ;
    s.resultsValid = true;
    return;
  } catch (const CalcFault&) {
  } catch (const std::exception&) {
    // Any other failure of a stage (a bad subscript of a standard container, a failed
    // conversion) counts as a run-time fault too.
  }
  VoidResults(s, reached);
  s.view.txtError = kCalcErrorText;
  s.view.txtErrorVisible = true;
}

void NewProject(State& s) {
  Project& p = s.project;
  // Stage 1: the reserved numbers, the three texts, the family name, the grade, the section switches.
  p.reserved1 = 1;
  p.reserved2 = 1;
  p.reserved3 = 1;
  p.reserved4 = 1;
  p.reserved5 = 1;
  p.reserved6 = 1;
  p.fileName = "New File";
  p.projectName = "Project";
  p.projectIdent = "Test";
  p.profileName = "HEA";
  p.steelGrade = 5;
  p.rhsTurned = 1;
  p.hsqKind = 0;
  p.angleOption = 1;

  // Stage 2: a run with what the record holds now (the previous project, or zeros at start-up).
  Recalculate(s);

  // Stage 3: all the other defaults, ending with L, a and the load tables.
  p.ProfileType = 1;
  p.figureNotToScale = 1;
  p.SelectedRow.fill(0);
  for (int id : {catHea, catHeb, catHem, catIpe, catUpe, catUnp}) p.SelectedRow[id] = 10;
  p.SelectedRow[catInp] = 11;
  for (int id : {catShs, catRhs, catCfshs, catCfrhs, catL1}) p.SelectedRow[id] = 50;
  p.SelectedRow[catL2] = 40;
  p.SelectedRow[catL3] = 5;
  p.SelectedRow[catHp] = 5;
  for (int id : {catUb, catUbp, catUc, catJ, catPfc, catCh}) p.SelectedRow[id] = 10;
  p.subFamily101 = 1;
  p.subFamily103 = 1;
  p.p21 = {600, 300, 12, 20};
  p.p22 = {600, 200, 400, 12, 20, 20};
  p.p23 = {600, 600, 10, 20, 50, 0};
  p.p24 = {300, 300, 540, 6, 25, 15, 5, 50, 1};
  p.p25 = {300, 300, 430, 6, 25, 15, 15, 1};
  p.p26 = {200, 200, 10, 10};
  p.p27 = {600, 600, 600, 10, 20, 20, 25};
  p.p28 = {150, 12};
  p.p31 = {300, 10, 1};
  p.p41 = {"General",
           3,
           1,
           1,
           18720.0f,
           12000.0f,
           6720.0f,
           1923000.0f,
           1185000000.0f,
           90080000.0f,
           7569000000000.0f,
           3951000.0f,
           600500.0f,
           4421000.0f,
           920200.0f};
  p.p51 = {200, 600, 10, 10};
  p.p52 = {600, 10};
  p.p53 = {300, 600, 100, 11.5, 10, 16};
  p.p54 = {600, 10};
  p.p55 = {250, 600, 200, 8, 12, 50};
  p.p56 = {580, 300, 300, 12, 20, 20};

  p.rho = 7850;

  p.bucklingFactorY = 1.0f;
  p.bucklingFactorZ = 1.0f;
  p.bucklingCaseY = 2;
  p.bucklingCaseZ = 2;
  p.bucklingCurveY = 0;
  p.bucklingCurveZ = 0;

  p.SupportType = 0;
  p.SpringPct = 50;
  p.rigidEndPost = 0;
  p.webStiffeners = 0;

  p.ltbOn = 1;
  p.ltbCase = 2;
  p.ltbFactor = 1.0f;
  p.ltbRestraints = 0;
  p.ltbPart = 0;
  p.ltbUserC = False;
  p.ltbUserC1 = False;
  p.ltbCurve = 3;
  p.ltbLoadLevel = 1;
  p.ltbZa = 0;
  p.ltbC1 = 1;
  p.ltbC2 = 1;
  p.ltbC3 = 1;
  p.ltbMcrMethod = 0;

  p.AnalysisMode = 1;
  p.chModal = 0;
  p.SelfweightOn = 0;
  p.ChPointMode = 0;
  p.ChPointCount = 1;
  p.ChPointRelative = 0;
  p.ChPointX = {0.0f, 1.0f, 2.0f, 3.0f};

  p.NEndForce = 100;
  p.My12 = {0, 100, 0};
  p.Mz12 = {0, 0, 0};
  p.Vy12 = {0, 0, 0};
  p.Vz12 = {0, 50, 0};

  p.L = 5.0f;
  p.a = 2500;

  Loads& l = s.loads;
  l = Loads{};
  l.axial[1].N = 100;
  for (auto& u : l.uniform) u.Dir = 1;
  l.uniform[1].q = 10;
  for (auto& t : l.trapezoid) t.Dir = 1;
  for (auto& pt : l.point) pt.Dir = 1;
  l.axial[1].Checked = True;
  l.uniform[1].Checked = True;
  l.trapezoid[1].Checked = True;
  l.point[1].Checked = True;
  l.uniform[0] = UniformLoad{};  // the selfweight slot is made again by each analysis
}

}  // namespace vn
