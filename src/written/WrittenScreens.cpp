#include "written/WrittenScreens.h"

#include "written/ADD333.h"
#include "written/sub33.h"
#include "written/times.h"
#include "written/times2.h"

namespace nb {

void registerWrittenScreens(ScreenRegistry &registry)
{
    registry.add<Add333>("ADD333", "Adding practice");
    registry.add<Sub33>("sub33", "Subtraction practice");
    registry.add<Times2>("times2", "Multiplication practice");
    registry.add<Times>("times", "Multiplication practice");
}

} // namespace nb
