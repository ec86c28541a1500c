#include "speech/SpeechBackEnd.h"

namespace qves {

void Utterance::DropFront(std::size_t length) {
  Text.erase(0, length);
  std::erase_if(Marks, [length](const BookMark& mark) { return mark.Offset < length; });
  for (BookMark& mark : Marks) mark.Offset -= length;
}

}  // namespace qves
