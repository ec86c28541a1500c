#include <gtest/gtest.h>

#include <QTest>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextList>

#include "desktop/FormWindow.h"
#include "dialogs/RichText.h"

namespace qves {
namespace {

class ReaderForm : public Form {
 public:
  explicit ReaderForm(std::string_view source) : Form("frmReader", "Reading") {
    static const ControlSpec spec = {.Name = "lraTest", .Kind = ControlKind::Reader};
    Shown = static_cast<Reader*>(&Add(std::make_unique<Reader>(spec, "", "Reading", "help")));
    Shown->Document = ReadRichText(source);
    Shown->Text = PlainText(Shown->Document);
    PanelList = {{}};
    PlaceFocus(*Shown);
  }
  /// As a reading does, or with a length of 0 an arrow.
  void Place(std::size_t start, std::size_t length) {
    Shown->SpokenStart = Shown->Caret = start;
    Shown->SpokenLength = length;
    ReaderMoved(*Shown);
  }
  std::size_t PlaceOf(std::string_view part) const { return Shown->Text.find(part); }
  Reader* Shown = nullptr;
};

struct ReaderWidgetTest : testing::Test {
  AppSettings Settings;
  HintNotify Hints;
  std::unique_ptr<ReaderForm> Shown;
  std::unique_ptr<FormWindow> Window;

  QTextEdit& Show(std::string_view source) {
    Window.reset();
    Shown = std::make_unique<ReaderForm>(source);
    Window = std::make_unique<FormWindow>(Settings, Hints);
    Window->ShowForm(*Shown);
    EXPECT_TRUE(QTest::qWaitForWindowExposed(Window.get()));
    return dynamic_cast<QTextEdit&>(*Window->WidgetOf(*Shown->Shown));
  }
  static std::string Highlighted(const QTextEdit& view) {
    std::string all;
    for (const auto& part : view.extraSelections()) all += part.cursor.selectedText().toStdString();
    return all;
  }
};

TEST_F(ReaderWidgetTest, TheSpokenSentenceIsHighlightedWhateverStandsBeforeIt) {
  QTextEdit& view = Show(
      "{\\rtf1 \\u233?t\\u233? \\u-10179?\\u-8704? first.\\par {\\pntext\\bullet\\tab}Second one.\\par\\par "
      "{\\b Third} \\i here.\\par}");
  for (const char* sentence : {"\u00E9t\u00E9 \U0001F600 first.", "Second one.", "Third here."}) {
    Shown->Place(Shown->PlaceOf(sentence), std::string_view(sentence).size());
    EXPECT_EQ(Highlighted(view), sentence);
    EXPECT_EQ(view.textCursor().position(), view.extraSelections().front().cursor.selectionStart());
  }
  const auto format = view.extraSelections().front().format;
  EXPECT_EQ(format.background(), view.palette().highlight());
  EXPECT_EQ(format.foreground(), view.palette().highlightedText());
  Shown->Place(0, 0);
  EXPECT_EQ(Highlighted(view), "");
  Shown->Place(100'000, 100'000);  // no place of the text
  EXPECT_TRUE(view.textCursor().atEnd());
}

TEST_F(ReaderWidgetTest, TheSpokenSentenceIsKeptInSightToItsEnd) {
  const auto sentence = [](int number) {
    std::string text = "Line " + std::to_string(number);
    for (int i = 0; i < 12; ++i) text += " of the document";
    return text + ".";
  };
  std::string source = "{\\rtf1 ";
  for (int i = 100; i < 200; ++i) source += sentence(i) + "\\par ";
  QTextEdit& view = Show(source + "}");
  std::vector<int> carets;
  QObject::connect(&view, &QTextEdit::cursorPositionChanged,
                   [&] { carets.push_back(view.textCursor().position()); });
  for (const int number : {100, 104, 105, 106, 150, 199, 101}) {
    Shown->Place(Shown->PlaceOf(sentence(number)), sentence(number).size());
    QTextCursor end = view.textCursor();
    end.setPosition(end.position() + static_cast<int>(sentence(number).size()));
    EXPECT_TRUE(view.viewport()->rect().contains(view.cursorRect())) << number;
    EXPECT_TRUE(view.viewport()->rect().contains(view.cursorRect(end).center())) << number;
  }
  EXPECT_EQ(carets.size(), 6U) << "a screen reader is told of each move";
}

TEST_F(ReaderWidgetTest, TheDocumentsLooksAreShown) {
  QTextEdit& view = Show(
      "{\\rtf1{\\colortbl;\\red255\\green0\\blue0;}\\fs48\\b Big\\b0\\fs24\\par "
      "{\\pntext\\bullet\\tab}dot\\par "
      "{\\i slanted} {\\ul under} \\cf1 red\\par\\pard\\li720 inside\\par}");
  const auto at = [&](const char* part) {
    QTextCursor cursor = view.document()->find(part);
    EXPECT_TRUE(cursor.hasSelection()) << part;
    return cursor;
  };
  const double usual = view.font().pointSizeF();
  EXPECT_DOUBLE_EQ(at("Big").charFormat().fontPointSize(), 2 * usual);
  EXPECT_EQ(at("Big").charFormat().fontWeight(), QFont::Bold);
  EXPECT_DOUBLE_EQ(at("slanted").charFormat().fontPointSize(), usual);
  EXPECT_TRUE(at("slanted").charFormat().fontItalic());
  EXPECT_FALSE(at("under").charFormat().fontItalic());
  EXPECT_TRUE(at("under").charFormat().fontUnderline());
  EXPECT_EQ(at("red").charFormat().foreground().color(), QColor(Qt::red));
  EXPECT_DOUBLE_EQ(at("inside").block().blockFormat().leftMargin(), 36);
  EXPECT_TRUE(at("dot").currentList());
  EXPECT_DOUBLE_EQ(at("dot").blockCharFormat().fontPointSize(), usual) << "the bullet's size";
  EXPECT_EQ(view.toPlainText().toStdString(), Shown->Shown->Text);
}

TEST_F(ReaderWidgetTest, TheHostProductsColoursAndSizeStandForTheDocuments) {
  Settings.HostFileFound = true;
  Settings.TextColor = 0;
  Settings.BackColor = 15;
  Settings.FontSize = 28;
  const QTextEdit& view = Show("{\\rtf1{\\colortbl;\\red255\\green255\\blue255;}\\fs48\\cf1 white\\par}");
  const QTextCharFormat format = view.document()->find("white").charFormat();
  EXPECT_FALSE(format.hasProperty(QTextFormat::ForegroundBrush)) << "white on white could not be read";
  EXPECT_DOUBLE_EQ(format.fontPointSize(), 56);
  EXPECT_EQ(view.palette().color(QPalette::Text), QColor("black"));
  EXPECT_EQ(view.palette().color(QPalette::Base), QColor("white"));
}

/// Looking for the ends of words there would take the toolkit minutes.
TEST_F(ReaderWidgetTest, WhatIsNoWritingIsBrokenAnywhere) {
  const std::string runs = [] {
    std::string text;
    while (text.size() < 500'000) text += "{\\b x}{\\i y}";
    return text;
  }();
  for (const std::string& text : {std::string(500'000, 'x'), runs}) {
    EXPECT_EQ(Show("{\\rtf1 " + text + "}").wordWrapMode(), QTextOption::WrapAnywhere);
  }
  EXPECT_EQ(Show("{\\rtf1 Words, of which none is long.\\par}").wordWrapMode(),
            QTextOption::WrapAtWordBoundaryOrAnywhere);
}

}  // namespace
}  // namespace qves
