// The time a person waits after a field: from leaving `il` with a new length to the main form
// painted anew (the field protocol, the recalculation, the refresh of every bound widget, the
// summary and the charts, and a full paint of the window). Runs without a display.
//
//   forms_bench --benchmark_repetitions=5 --benchmark_report_aggregates_only=true
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLineEdit>
#include <QPixmap>
#include <clocale>
#include <cstdio>
#include <cstdlib>

#include "core/startup.h"
#include "forms/look.h"
#include "forms/main_form.h"
#include "forms/session.h"

namespace {

using vn::forms::MainForm;
using vn::forms::Session;

void Settle() {
  for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
}

// The program's main form on the default project, shown and settled.
struct Program {
  Session session;
  MainForm* form = nullptr;
  QLineEdit* il = nullptr;
  QLineEdit* iproj = nullptr;

  Program() {
    session.start(QCoreApplication::applicationDirPath().toStdString(), false);
    form = new MainForm(&session);
    form->show();
    form->activateWindow();
    Settle();
    il = form->findChild<QLineEdit*>("il");
    iproj = form->findChild<QLineEdit*>("iproj");
  }
  ~Program() { delete form; }
};

// Leaves `il` as a person does: the focus comes in, the text is typed, the focus goes on to another
// field; the queued protocol fires `il`, the form refreshes, and the whole window is painted.
void BM_LeaveLengthFieldToRepaint(benchmark::State& state) {
  Program p;
  if (!p.il || !p.iproj) {
    state.SkipWithError("the main form has no field il");
    return;
  }
  bool five = true;
  for (auto _ : state) {
    p.il->setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    p.il->setText(five ? QStringLiteral("5") : QStringLiteral("6"));
    p.iproj->setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();  // the queued leave: Fire("il"), then the refresh
    QPixmap shot = p.form->grab();
    benchmark::DoNotOptimize(shot);
    if (p.session.state().project.L != (five ? 5.0f : 6.0f)) {
      state.SkipWithError("the length was not taken: is the window active?");
      break;
    }
    five = !five;
  }
}
BENCHMARK(BM_LeaveLengthFieldToRepaint)->Unit(benchmark::kMillisecond);

// The same without the focus moves: the event fired and the form refreshed by the session's
// signal, then the full paint.
void BM_FireLengthToRepaint(benchmark::State& state) {
  Program p;
  bool five = true;
  for (auto _ : state) {
    p.session.fire("il", five ? "5" : "6");
    QCoreApplication::processEvents();
    QPixmap shot = p.form->grab();
    benchmark::DoNotOptimize(shot);
    five = !five;
  }
}
BENCHMARK(BM_FireLengthToRepaint)->Unit(benchmark::kMillisecond);

// Only the event and the refresh of the widgets, no paint: what the paint adds is the difference.
void BM_FireLengthAndRefresh(benchmark::State& state) {
  Program p;
  bool five = true;
  for (auto _ : state) {
    p.session.fire("il", five ? "5" : "6");
    QCoreApplication::processEvents();
    five = !five;
  }
}
BENCHMARK(BM_FireLengthAndRefresh)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  int qtArgc = 1;
  QApplication app(qtArgc, argv);
  std::setlocale(LC_NUMERIC, "C");
  vn::forms::ApplyLook(app);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
