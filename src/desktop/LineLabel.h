// A line of the form that is no control: the keyboard never comes to it, and a screen reader can read it.
#pragma once

#include <QLabel>

#include "services/AppSettings.h"

namespace qves {

class LineLabel : public QLabel {
 public:
  /// `name`: what a screen reader calls it. `elide`: the end at which a long text is cut.
  LineLabel(const std::string& name, Qt::TextElideMode elide, const AppSettings& settings, QWidget* parent);
  void Show(const std::string& line);
  void Restyle();
  QSize minimumSizeHint() const override;
  QSize sizeHint() const override { return minimumSizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const QString Name;
  const Qt::TextElideMode Elide;
  const AppSettings& Settings;
};

}  // namespace qves
