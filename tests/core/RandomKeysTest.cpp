// Random keys, the same ones in every run: whatever is typed, the view answers, and the tape stays whole.
#include <gtest/gtest.h>

#include <random>

#include "FakePlatform.h"
#include "app/CalculatorApp.h"
#include "engine/Numbers.h"
#include "services/ServiceSet.h"

namespace qves {
namespace {

KeyEvent RandomKey(std::mt19937& random) {
  static constexpr int usual[] = {
      '0',         '1',          '2',       '5', '7',       '9',      KeyPeriod,
      KeyPadAdd,   KeyPadDivide, KeyEscape, 'M', KeyDelete, KeyEnter, KeyPadMultiply,
      KeyBackspace};
  const auto upTo = [&](unsigned count) { return static_cast<int>(random() % count); };
  KeyEvent event;
  event.Code = upTo(4) != 0 ? usual[upTo(std::size(usual))] : upTo(256);
  event.Shift = upTo(4) != 0 ? NoShift : upTo(8);
  if (event.Shift == NoShift && upTo(8) == 0) event.Character = U"*/-+=."[upTo(6)];
  return event;
}

TEST(RandomKeys, NothingBreaksAndEveryDisplayIsANumberOrTheError) {
  FakePlatform outside;
  ServiceSet set(outside.All);
  struct : AppObserver {
  } nobody;
  CalculatorApp app(set.All, nobody);
  ASSERT_TRUE(app.Main());
  const Form& form = *app.ActiveForm();
  const auto& display = dynamic_cast<const TextBox&>(*form.Find("txtDisplay"));
  std::mt19937 random(20260131);
  for (int i = 0; i < 100000; ++i) {
    const KeyEvent event = RandomKey(random);
    app.KeyDown(event);
    app.KeyUp(event.Code);
    outside.Speech.Said.clear();
    ASSERT_TRUE(display.Text == "E" || ParseNumber(display.Text) ||
                display.Text.find("E+") != std::string::npos)
        << display.Text;
  }
  app.KeyDown({KeyEscape, NoShift, 0});
  EXPECT_EQ(display.Text, "0");
}

}  // namespace
}  // namespace qves
