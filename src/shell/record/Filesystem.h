#pragma once
// The load screen: reads a pupil's record into PupilProgress, all or nothing, and returns to the
// main menu.
#include "shell/record/RecordFileScreen.h"

namespace nb {

class Filesystem : public RecordFileScreen
{
public:
    explicit Filesystem(App &app);

protected:
    void act() override;
};

} // namespace nb
