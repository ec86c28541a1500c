// The desktop's base directories.
#pragma once

#include <string>

#include "platform/Outside.h"

namespace qves {

class BaseDirectories : public DirectoryManager {
 public:
  /// With a home everything lies below it, whatever the environment says; without one the environment
  /// decides, then the user database.
  explicit BaseDirectories(std::string home = {});

  std::string UserName() override;
  std::string ProgramFolder() override { return Program; }
  std::string ConfigFolder() override;
  std::string StateFolder() override;
  std::string DocumentsFolder() override;
  const std::string& Home() const { return HomeFolder; }
  /// The home below which everything lies; "" without one.
  std::string ConfinedTo() const { return Confined ? HomeFolder : std::string(); }

 private:
  /// Of the environment, or the usual one below the home.
  std::string BaseFolder(const char* variable, const char* usual) const;
  std::string FromUserDirs(const std::string& name);

  bool Confined;
  std::string HomeFolder;
  std::string Program;
};

}  // namespace qves
