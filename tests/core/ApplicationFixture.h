// The whole application on the fake platform.
#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "FakePlatform.h"
#include "app/CalculatorApp.h"
#include "services/ServiceSet.h"

namespace qves {

using Texts = std::vector<std::string>;

struct ApplicationTest : testing::Test, AppObserver {
  FakePlatform Outside;
  std::optional<ServiceSet> Set;
  std::optional<CalculatorApp> App;
  Texts Events;

  void FormShown(Form& form) override { Events.push_back("shown " + form.Name()); }
  void FormClosed(Form& form) override { Events.push_back("closed " + form.Name()); }
  void Ended() override { Events.push_back("ended"); }

  bool Start() {
    Set.emplace(Outside.All);
    App.emplace(Set->All, *this);
    return App->Main();
  }
  /// What the voice was given since the last look, the event of now included.
  Texts TakeSaid() {
    Set->All.Speech.EndTurn();
    return std::exchange(Outside.Speech.Said, {});
  }
};

}  // namespace qves
