// The finished calculations of every view, kept over restarts.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <string_view>

#include "formulas/NumberBases.h"
#include "platform/Platform.h"
#include "services/AppSettings.h"
#include "services/ErrorLog.h"

namespace qves {

struct FinishedCalculation {
  std::string Line;                ///< as a tape shows it: "7 + 5 = 12"
  double Value = 0;                ///< its result, with all its digits
  int Base = NumberBase::Decimal;  ///< the list index of the base that the line is written in
};

class History {
 public:
  static constexpr std::size_t MostLines = 1000;

  History(Platform& outside, const AppSettings& settings, ErrorLog& log)
      : Outside(outside), Settings(settings), Log(log) {}

  /// Reads what earlier sessions have kept, when it is first asked for or written.
  void Add(FinishedCalculation calculation);
  int Count();
  /// Walks to the calculation before or after the one heard last, and stays at the ends. The first step leads
  /// to the newest. Nothing in an empty history.
  const FinishedCalculation* Walk(int step);
  /// The place of the one that the walk stands at, from 1.
  int Place() const { return static_cast<int>(At) + 1; }
  /// The one heard last, else the newest; nothing in an empty history.
  const FinishedCalculation* Heard();
  /// Forgets every calculation, also those of earlier sessions.
  void Clear();
  /// Adds this session's calculations to the file, where the user wants them kept.
  void Save();

 private:
  struct Kept {
    std::deque<FinishedCalculation> Lines;
    std::string Damaged;  ///< all of a file that holds more than calculations
  };

  void Load();
  std::optional<Kept> ReadFile();
  bool SaveDamaged(const std::string& content);
  std::string Folder() const;
  std::string Path() const;
  void Complain(const std::string& what);

  Platform& Outside;
  const AppSettings& Settings;
  ErrorLog& Log;
  std::deque<FinishedCalculation> Calculations;
  std::size_t NewOnes = 0;  ///< of this session, at the end
  std::size_t At = 0;
  bool Walking = false;
  bool Loaded = false;
  std::string LastComplaint;
};

}  // namespace qves
