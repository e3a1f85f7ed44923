#pragma once
#include "core/Screen.h"

namespace nb {

// The first screen: a full-screen picture and one button that goes on to the main menu.
class Cover : public Screen
{
public:
    explicit Cover(App &app);
    void onClick(const std::string &name, int index) override;
};

} // namespace nb
