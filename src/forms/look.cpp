#include "forms/look.h"

#include <QApplication>
#include <QFont>
#include <QGroupBox>
#include <QStyleFactory>

namespace vn::forms {

void ApplyLook(QApplication& app) {
  if (QStyleFactory::keys().contains("Fusion")) QApplication::setStyle("Fusion");
  QFont font = QApplication::font();
  font.setPointSizeF(8.5);
  QApplication::setFont(font);
  app.setStyleSheet(
      "QGroupBox { border: 1px solid palette(mid); border-radius: 3px; margin-top: 0.55em;"
      " padding: 4px 2px 2px 2px; }"
      "QGroupBox::title { subcontrol-origin: margin; subcontrol-position: top left; left: 7px;"
      " padding: 0 3px; }"
      // The option set among the support pictures stands out.
      "QToolButton:checked { background: #cfe0f4; border: 1px solid #3d7cc9; border-radius: 3px; }");
}

void KeepCaptionsWhole(QWidget* dialog) {
  for (QGroupBox* g : dialog->findChildren<QGroupBox*>()) {
    QString title = g->title();
    title.replace("&&", "&");
    const int needed = g->fontMetrics().horizontalAdvance(title) + 28;
    if (g->minimumSizeHint().width() < needed) g->setMinimumWidth(needed);
  }
}

}  // namespace vn::forms
