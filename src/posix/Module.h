// Parts of the program that are loaded only when they are wanted.
#pragma once

#include <string>

namespace qves {

/// A function of a module, a shared library beside the program or in an installed program's library folder.
/// The module stays loaded. Null on failure, with the reason in `error`.
void* FindInModule(const char* module, const char* function, std::string& error);

}  // namespace qves
