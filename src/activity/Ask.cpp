#include "activity/Ask.h"

#include "core/Platform.h"
#include "core/PupilProgress.h"

namespace nb {

int ask(Platform &platform, PupilProgress &progress, const std::string &question)
{
    progress.MessageText = Value::text(question);
    const int reply = platform.askYesNo(question);
    progress.MessageReply = Value::int16(std::int16_t(reply));
    return reply;
}

void tell(Platform &platform, PupilProgress &progress, const std::string &text)
{
    progress.MessageText = Value::text(text);
    platform.message(text);
}

} // namespace nb
