// All outside things together, as a shell hands them to the calculator.
#pragma once

#include "platform/FileStore.h"
#include "platform/FixedSizeFileDialog.h"
#include "platform/Notifiers.h"
#include "platform/Outside.h"
#include "platform/SoundPlayer.h"
#include "platform/Spreadsheet.h"
#include "platform/TTS.h"
#include "platform/WindowSystem.h"

namespace qves {

struct Platform {
  TTS& Speech;
  KeyCapture& Keys;
  HintNotify& Hints;
  AppWMSpy& WindowMessages;
  WindowSystem& Windows;
  FileStore& Files;
  DirectoryManager& Directories;
  qves::Registry& RegistryStore;
  qves::Locale& Locale;
  qves::Clock& Clock;
  EventPump& Events;
  RandomSource& Random;
  SoundPlayer& Sounds;
  FixedSizeFileDialog& FileDialog;
  qves::Spreadsheet& Spreadsheet;
};

}  // namespace qves
