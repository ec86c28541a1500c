#include "desktop/ReaderWidget.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextList>

#include "desktop/Appearance.h"

namespace qves {
namespace {

constexpr int UsualHalfPoints =
    24;  // of a document; the desktop's font, or the host product's, stands for it
constexpr int TwipsAPoint = 20;
constexpr int SmallestColumns = 24;
constexpr int SmallestLines = 4;
constexpr int UsualColumns = 60;
constexpr int UsualLines = 18;

QTextCharFormat FormatOf(const TextStyle& style, const QFont& usual, bool ownColors) {
  QTextCharFormat format;
  format.setFontWeight(style.Bold ? QFont::Bold : usual.weight());
  format.setFontItalic(style.Italic || usual.italic());
  format.setFontUnderline(style.Underline);
  if (usual.pointSizeF() > 0)
    format.setFontPointSize(usual.pointSizeF() * std::max(style.HalfPoints, 1) / UsualHalfPoints);
  if (ownColors && style.Color >= 0) format.setForeground(QColor::fromRgb(static_cast<QRgb>(style.Color)));
  return format;
}

/// What has longer words is no writing, and the toolkit would look for their ends for minutes.
QTextOption::WrapMode WrapFor(std::string_view text) {
  constexpr std::size_t longestWord = 1000;
  for (std::size_t start = 0; text.size() - start > longestWord;) {
    const std::size_t blank = text.substr(start, longestWord).find_last_of(" \t\n");
    if (blank == std::string_view::npos) return QTextOption::WrapAnywhere;
    start += blank + 1;
  }
  return QTextOption::WrapAtWordBoundaryOrAnywhere;
}

TextStyle StyleOf(const Paragraph& paragraph) {
  return paragraph.Runs.empty() ? TextStyle() : paragraph.Runs.front().Style;
}

QTextBlockFormat FormatOf(const Paragraph& paragraph) {
  QTextBlockFormat format;
  if (paragraph.Bullet) return format;  // a list has an indent of its own
  if (paragraph.LeftIndent != 0)
    format.setLeftMargin(static_cast<double>(paragraph.LeftIndent) / TwipsAPoint);
  if (paragraph.FirstIndent != 0)
    format.setTextIndent(static_cast<double>(paragraph.FirstIndent) / TwipsAPoint);
  return format;
}

}  // namespace

ReaderView::ReaderView(Reader& reader, ControlHost& host, const AppSettings& settings, QWidget* parent)
    : QTextEdit(parent), Model(reader), Host(host), Settings(settings) {
  setReadOnly(true);
  setUndoRedoEnabled(false);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  MakeRoomForFrame(*this);
  setCursorWidth(OutlineWidth);
  NameForScreenReader(*this, reader);
}

void ReaderView::Restyle() {
  ApplyAppearance(*this, TextRole::Tape, Settings);
  ShowDocument();
}

/// The whole text at once and then its looks, where they are any: a long plain text costs little. Bullets are
/// marks of the list format, not of the text: places in the text stay those of the form's.
void ReaderView::ShowDocument() {
  setWordWrapMode(WrapFor(Model.Text));
  setPlainText(QString::fromUtf8(Model.Text));
  QTextCursor cursor(document());
  cursor.beginEditBlock();
  for (const Paragraph& paragraph : Model.Document.Paragraphs) {
    const bool isFirst = &paragraph == &Model.Document.Paragraphs.front();
    if (!isFirst) cursor.setPosition(cursor.position() + 1);  // beyond the end of the one before
    ApplyLooks(cursor, paragraph);
  }
  cursor.endEditBlock();
}

/// From the cursor on; it ends behind the paragraph's last character.
void ReaderView::ApplyLooks(QTextCursor& cursor, const Paragraph& paragraph) const {
  const auto formatOf = [this](const TextStyle& style) {
    return FormatOf(style, font(), !Settings.HostFileFound);
  };
  if (const QTextBlockFormat format = FormatOf(paragraph); format != QTextBlockFormat())
    cursor.setBlockFormat(format);
  // A bullet's size is the block's own.
  if (paragraph.Bullet) {
    cursor.setBlockCharFormat(formatOf(StyleOf(paragraph)));
    cursor.createList(QTextListFormat::ListDisc);
  }
  for (const TextRun& run : paragraph.Runs) {
    const int end = cursor.position() + static_cast<int>(QString::fromUtf8(run.Text).size());
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    if (run.Style != TextStyle()) cursor.setCharFormat(formatOf(run.Style));
    cursor.setPosition(end);
  }
}

QTextCursor ReaderView::CursorAt(std::size_t start, std::size_t length) const {
  const std::string_view text = Model.Text;
  const auto from = static_cast<int>(QString::fromUtf8(text.substr(0, start)).size());
  const auto size =
      static_cast<int>(QString::fromUtf8(text.substr(std::min(start, text.size()), length)).size());
  const int last = document()->characterCount() - 1;
  QTextCursor cursor(document());
  cursor.setPosition(std::min(from, last));
  cursor.setPosition(std::min(from + size, last), QTextCursor::KeepAnchor);
  return cursor;
}

void ReaderView::Refresh() {
  setEnabled(Model.Enabled);
  QList<ExtraSelection> spoken;
  if (Model.SpokenLength > 0) {
    ExtraSelection sentence;
    sentence.cursor = CursorAt(Model.SpokenStart, Model.SpokenLength);
    sentence.format.setForeground(palette().highlightedText());
    sentence.format.setBackground(palette().highlight());
    spoken.append(sentence);
  }
  setExtraSelections(spoken);
  // Its end first, then its start: a long sentence shows from its beginning.
  ScrollDownTo(CursorAt(Model.Caret + Model.SpokenLength, 0));
  setTextCursor(CursorAt(Model.Caret, 0));
}

/// The caret stays, as a screen reader is told of each of its moves.
void ReaderView::ScrollDownTo(const QTextCursor& place) {
  const int below = cursorRect(place).bottom() - viewport()->height();
  if (below > 0) verticalScrollBar()->setValue(verticalScrollBar()->value() + below);
}

QSize ReaderView::SizeOf(int columns, int lines) const {
  const QFontMetrics metrics = fontMetrics();
  const int around = 2 * (frameWidth() + static_cast<int>(document()->documentMargin()));
  return {metrics.averageCharWidth() * columns + around, metrics.lineSpacing() * lines + around};
}

QSize ReaderView::minimumSizeHint() const {
  return SizeOf(SmallestColumns, SmallestLines);
}

QSize ReaderView::sizeHint() const {
  return SizeOf(UsualColumns, UsualLines);
}

bool ReaderView::event(QEvent* event) {
  return PaintFrame(*this, *event) || QTextEdit::event(event);
}

void ReaderView::keyPressEvent(QKeyEvent* event) {
  // The form moves the caret and reads; a copy is the toolkit's.
  if (event->matches(QKeySequence::Copy))
    QTextEdit::keyPressEvent(event);
  else
    event->ignore();
}

}  // namespace qves
