#pragma once
// The achievements screen: the pupil's name and every saved best time and level in one table,
// opened on top of a topic menu. PRINT prints it (or saves it as a PDF when there is no printer).
#include "core/Screen.h"

namespace nb {

class BestTimes : public Screen
{
public:
    explicit BestTimes(App &app);
    void onOpened() override;
    void onClick(const std::string &name, int index) override;

private:
    void print();
};

} // namespace nb
