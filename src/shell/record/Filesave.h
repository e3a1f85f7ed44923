#pragma once
// The save screen: writes the pupil's record and ends the program. A pupil whose record was loaded
// in this run is written straight back to that file as the screen opens.
#include "shell/record/RecordFileScreen.h"

namespace nb {

class Filesave : public RecordFileScreen
{
public:
    explicit Filesave(App &app);
    void onOpened() override;

protected:
    void act() override;

private:
    // Writes the record and ends the program; on failure says why and returns false, with the
    // name box cleared when another name is needed.
    bool save(const std::filesystem::path &dir, const std::string &fileName);
    void nameTakenMessage();
};

} // namespace nb
