#include "desktop/ControlWidgets.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>

#include "desktop/ChoiceWidgets.h"
#include "desktop/ListWidgets.h"
#include "desktop/ReaderWidget.h"

namespace qves {
namespace {

constexpr int TextMargin = OutlineWidth + 2;  // pixels between the border and the text
constexpr int IndicatorColumns = 2;
constexpr int SmallestDisplayColumns = 10;
constexpr int SmallestTapeColumns = 12;
constexpr int SmallestTapeLines = 3;
constexpr int TapeColumns = 24;
constexpr int TapeLines = 8;

/// The number of characters, as the toolkit counts them, in a text of line ends "\r\n"; a line end counts as
/// one.
int CountCharacters(std::string_view text) {
  const QString shown = QString::fromUtf8(text);
  return static_cast<int>(shown.size() - shown.count(QLatin1String("\r\n")));
}

struct Selection {
  int Start;
  int Length;
};

Selection SelectionOf(const TextBox& box) {
  const std::string_view text = box.Text;
  const std::size_t start = std::min(box.SelStart, text.size());
  return {CountCharacters(text.substr(0, start)), CountCharacters(text.substr(start, box.SelLength))};
}

}  // namespace

ButtonView::ButtonView(Button& button, ControlHost& host, QWidget* parent)
    : QPushButton(parent), Model(button), Host(host) {
  setText(CaptionOf(button));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setFocusPolicy(Qt::StrongFocus);
  NameForScreenReader(*this, button);
  connect(this, &QPushButton::clicked, this, [this] { Host.ControlPressed(Model); });
}

/// The toolkit's own minimum is twice as wide as a short caption needs.
QSize ButtonView::minimumSizeHint() const {
  const int height = sizeHint().height();
  const int text = fontMetrics().size(Qt::TextShowMnemonic, this->text()).width();
  return {std::max(text + 2 * TextMargin, height), height};
}

QSize ButtonView::sizeHint() const {
  const QSize hint = QPushButton::sizeHint();
  return {hint.width(), std::max(hint.height(), ButtonHeight(*this))};
}

void ButtonView::keyPressEvent(QKeyEvent* event) {
  // Space, Enter and the arrows act through the form; here they would act a second time.
  event->ignore();
}

void ButtonView::paintEvent(QPaintEvent* event) {
  QPushButton::paintEvent(event);
  PaintOutline(*this);
}

LineView::LineView(TextBox& box, ControlHost& host, const AppSettings& settings, QWidget* parent)
    : QLineEdit(parent), Model(box), IsIndicator(box.Has(Indicator)), Host(host), Settings(settings) {
  setReadOnly(true);
  setFrame(false);
  setTextMargins(TextMargin, TextMargin, TextMargin, TextMargin);
  setAlignment(IsIndicator ? Qt::AlignCenter : Qt::AlignRight | Qt::AlignVCenter);
  setFocusPolicy(Qt::StrongFocus);
  setContextMenuPolicy(Qt::NoContextMenu);  // it would open without a word and take the keys
  setSizePolicy(IsIndicator ? QSizePolicy::Preferred : QSizePolicy::Expanding, QSizePolicy::Preferred);
  NameForScreenReader(*this, box);
  // An accessibility client may write into any line edit; this one shows what the form says.
  connect(this, &QLineEdit::textChanged, this, [this] { Refresh(); });
}

void LineView::Refresh() {
  setEnabled(Model.Enabled);
  if (const QString shown = QString::fromStdString(Model.Text); text() != shown) setText(shown);
  if (Model.SelLength == 0) return deselect();
  const Selection selection = SelectionOf(Model);
  setSelection(selection.Start, selection.Length);
}

void LineView::Restyle() {
  ApplyAppearance(*this, IsIndicator ? TextRole::Indicator : TextRole::Display, Settings);
}

QSize LineView::minimumSizeHint() const {
  const int columns = IsIndicator ? IndicatorColumns : SmallestDisplayColumns;
  const QFontMetrics metrics = fontMetrics();
  return {metrics.horizontalAdvance('0') * columns + 2 * TextMargin + 4,
          metrics.height() + 2 * TextMargin + 2};
}

QSize LineView::sizeHint() const {
  return IsIndicator ? minimumSizeHint() : QLineEdit::sizeHint();
}

void LineView::mouseReleaseEvent(QMouseEvent* event) {
  QLineEdit::mouseReleaseEvent(event);
  if (IsPrimaryClick(*event, *this)) Host.ControlPressed(Model);
}

void LineView::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  PaintOutline(*this);
}

LinesView::LinesView(TextBox& box, ControlHost& host, const AppSettings& settings, QWidget* parent)
    : QPlainTextEdit(parent), Model(box), Host(host), Settings(settings) {
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setUndoRedoEnabled(false);
  MakeRoomForFrame(*this);
  NameForScreenReader(*this, box);
}

void LinesView::Refresh() {
  setEnabled(Model.Enabled);
  if (Model.SelLength > 0) return ShowSelection();
  setPlainText(QString::fromStdString(Model.Text));
  ShowCaret();
  verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void LinesView::Append(std::size_t from) {
  QTextCursor end(document());
  end.movePosition(QTextCursor::End);
  end.insertText(QString::fromUtf8(std::string_view(Model.Text).substr(from)));
  setTextCursor(end);
  verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void LinesView::ShowCaret() {
  QTextCursor cursor(document());
  cursor.setPosition(CountCharacters(std::string_view(Model.Text).substr(0, Model.Caret)));
  setTextCursor(cursor);
}

void LinesView::ShowSelection() {
  const Selection selection = SelectionOf(Model);
  QTextCursor cursor(document());
  cursor.setPosition(selection.Start);
  cursor.setPosition(selection.Start + selection.Length, QTextCursor::KeepAnchor);
  setTextCursor(cursor);
}

void LinesView::Restyle() {
  ApplyAppearance(*this, TextRole::Tape, Settings);
}

QSize LinesView::SizeOf(int columns, int lines) const {
  const QFontMetrics metrics = fontMetrics();
  const int around = 2 * (frameWidth() + static_cast<int>(document()->documentMargin()));
  return {metrics.horizontalAdvance('0') * columns + around + verticalScrollBar()->sizeHint().width(),
          metrics.lineSpacing() * lines + around};
}

QSize LinesView::minimumSizeHint() const {
  return SizeOf(SmallestTapeColumns, SmallestTapeLines);
}

QSize LinesView::sizeHint() const {
  return SizeOf(TapeColumns, TapeLines);
}

bool LinesView::event(QEvent* event) {
  return PaintFrame(*this, *event) || QPlainTextEdit::event(event);
}

void LinesView::mouseReleaseEvent(QMouseEvent* event) {
  QPlainTextEdit::mouseReleaseEvent(event);
  if (IsPrimaryClick(*event, *viewport())) Host.ControlPressed(Model);
}

ControlView* MakeControlView(Control& control, ControlHost& host, const AppSettings& settings,
                             QWidget* parent) {
  ControlView* view = nullptr;
  if (auto* button = dynamic_cast<Button*>(&control))
    view = new ButtonView(*button, host, parent);
  else if (auto* box = dynamic_cast<TextBox*>(&control); box && box->Has(MultiLine))
    view = new LinesView(*box, host, settings, parent);
  else if (box)
    view = new LineView(*box, host, settings, parent);
  else if (auto* check = dynamic_cast<CheckBox*>(&control))
    view = new CheckBoxView(*check, host, parent);
  else if (auto* list = dynamic_cast<ListBox*>(&control))
    view = new ListBoxView(*list, host, parent);
  else if (auto* data = dynamic_cast<ListView*>(&control))
    view = new ListViewWidget(*data, host, settings, parent);
  else if (auto* reader = dynamic_cast<Reader*>(&control))
    view = new ReaderView(*reader, host, settings, parent);
  if (!view) return nullptr;
  view->Restyle();
  view->Refresh();
  return view;
}

}  // namespace qves
