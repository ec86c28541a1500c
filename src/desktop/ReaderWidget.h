// The widget of a reader: the document with its looks, the sentence that is being read kept in sight and
// highlighted.
#pragma once

#include <QTextEdit>

#include "desktop/ControlView.h"
#include "services/AppSettings.h"

namespace qves {

class ReaderView : public QTextEdit, public ControlView {
 public:
  ReaderView(Reader& reader, ControlHost& host, const AppSettings& settings, QWidget* parent);
  void Refresh() override;
  void Restyle() override;
  QSize minimumSizeHint() const override;
  QSize sizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void ShowDocument();
  void ApplyLooks(QTextCursor& cursor, const Paragraph& paragraph) const;
  void ScrollDownTo(const QTextCursor& place);
  QTextCursor CursorAt(std::size_t start, std::size_t length) const;
  QSize SizeOf(int columns, int lines) const;

  Reader& Model;
  ControlHost& Host;
  const AppSettings& Settings;
};

}  // namespace qves
