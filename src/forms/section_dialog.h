// The dialog of a section family, one class for all families: the list of the family's rows, the
// frames "Dimension && Weight", "Section property" and "Capacity" with the values the core shows,
// and the figure box that toggles between "Figure not to scale" and "Figure to scale".
//
// Controls: <form>.cbo (the row chosen), <form>.pic1 (a click on the figure), <form>.Command1
// (close), <form>.Activate (the dialog comes to the front). Shown: view.items["<form>.cbo"],
// view.value["<form>.cbo"], view.sectionValues while the family is the one in use,
// view.text["<form>.pic1"] and view.pictures["<form>.pic1"].
#pragma once

#include <QDialog>
#include <string>
#include <vector>

#include "core/view.h"
#include "forms/profiles.h"
#include "results/report.h"

class QComboBox;
class QGridLayout;
class QGroupBox;

namespace vn::forms {

class Bindings;
class PictureBox;
class Session;

// A frame's rows of label, value and unit.
class ValueBlock : public QWidget {
  Q_OBJECT

 public:
  explicit ValueBlock(QWidget* parent = nullptr);
  void setLines(const std::vector<View::Line>& lines);
  int lineCount() const { return static_cast<int>(lines_.size()); }
  // The value text of the line with that label ("h =") or an empty text.
  QString valueOf(const QString& label) const;

 private:
  QGridLayout* grid_;
  std::vector<View::Line> lines_;
};

class SectionDialog : public QDialog {
  Q_OBJECT

 public:
  SectionDialog(Session* session, const ProfileEntry& family, QWidget* owner);
  const std::string& form() const { return form_; }
  void refresh();

  ValueBlock* dimensions() const { return dimensions_; }
  ValueBlock* properties() const { return properties_; }
  ValueBlock* capacity() const { return capacity_; }

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 public slots:
  void reject() override;

 private:
  std::string key(const char* control) const { return form_ + "." + control; }

  Session* session_;
  ProfileEntry family_;
  std::string form_;
  Bindings* bindings_;
  QComboBox* list_ = nullptr;
  QGroupBox* figureFrame_ = nullptr;
  PictureBox* figure_ = nullptr;
  ValueBlock* dimensions_ = nullptr;
  ValueBlock* properties_ = nullptr;
  ValueBlock* capacity_ = nullptr;
  bool closing_ = false;
};

}  // namespace vn::forms
