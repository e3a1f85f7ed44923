#pragma once
// A Yes/No question whose text and reply the program keeps: the text in MessageText and the
// answer (kYes, kNo, or kCancel where the box allows it) in MessageReply.
#include <string>

namespace nb {

class Platform;
struct PupilProgress;

int ask(Platform &platform, PupilProgress &progress, const std::string &question);

// An OK message whose text is kept in MessageText.
void tell(Platform &platform, PupilProgress &progress, const std::string &text);

} // namespace nb
