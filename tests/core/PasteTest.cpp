// Whatever the clipboard holds, and however much of it: one look at it, and no pause.
#include <chrono>
#include <cstdlib>

#include "ApplicationFixture.h"

namespace qves {
namespace {

using namespace std::chrono_literals;

/// For what takes milliseconds; a sanitizer makes it slower.
std::chrono::seconds Soon() {
  const char* slowness = std::getenv("QVES_SLOWNESS");
  return std::chrono::seconds(slowness ? std::atoi(slowness) : 1);
}
constexpr std::size_t Megabyte = 1'000'000;

std::string Repeated(std::string_view text, std::size_t size) {
  std::string out;
  out.reserve(size + text.size());
  while (out.size() < size) out += text;
  return out;
}

struct PasteTest : ApplicationTest {
  PasteTest() {
    Outside.Files.Content["/program/CalcMsg.txt"] +=
        "1823\tno number\n1824\t%% added.\n1825\tone added.\n1828\t%% left out.\n";
  }
  /// What is said of the paste in that view.
  Texts Paste(int view, std::string clipboard) {
    Set.emplace(Outside.All);
    App.emplace(Set->All, *this);
    App->Main({view});
    TakeSaid();
    Outside.Clip.Text = std::move(clipboard);
    const auto start = std::chrono::steady_clock::now();
    App->KeyDown({'V', ControlBit | ShiftBit, 0});
    EXPECT_LT(std::chrono::steady_clock::now() - start, Soon());
    return TakeSaid();
  }
};

TEST_F(PasteTest, BigTextsAndNoTexts) {
  const Texts none = {"now no number"};
  const struct {
    std::string Text;
    Texts Said;
  } rows[] = {
      {"", none},
      {"\xFF\xFE\x80\n\xC3", none},
      {std::string(3, '\0'), none},
      {std::string(100 * Megabyte, '7'), none},
      {Repeated("1\n", 4 * Megabyte), none},
      {Repeated("7", Megabyte), none},
      {Repeated("words and more ", Megabyte), none},
      {Repeated("\"\n", Megabyte), none},
      {Repeated("\"\";", Megabyte), none},
      {Repeated("\t", Megabyte), none},
      {Repeated("\xE2\x82\xAC\n", Megabyte), none},
      {Repeated("1,5;", Megabyte), {"now 32767 added. 217233 left out."}},
      {Repeated("8\n", 2 * std::size_t{40'000}), {"now 32767 added. 7233 left out."}},
  };
  for (const auto& row : rows)
    EXPECT_EQ(Paste(StatisticsView, row.Text), row.Said) << row.Text.substr(0, 20) << row.Text.size();
  for (const auto& row : rows) EXPECT_EQ(Paste(ScientificView, row.Text), none) << row.Text.substr(0, 20);
}

TEST_F(PasteTest, AFullListTakesNothing) {
  Paste(StatisticsView, Repeated("8\n", 2 * std::size_t{32'766}));
  const auto paste = [&](const char* text) {
    Outside.Clip.Text = text;
    App->KeyDown({KeyInsert, ShiftBit, 0});
    return TakeSaid();
  };
  EXPECT_EQ(paste("1\n2\n3"), (Texts{"now one added. 2 left out."}));
  EXPECT_EQ(paste("1\n2\n3"), (Texts{"now 0 added. 3 left out."}));
}

}  // namespace
}  // namespace qves
