#include "written/WrittenScreens.h"

#include "written/ADD333.h"
#include "written/ADD333b.h"
#include "written/div1into3dec.h"
#include "written/div1into3frac.h"
#include "written/div1into3withremsum.h"
#include "written/sub33.h"
#include "written/sub33b.h"
#include "written/t22.h"
#include "written/t32.h"
#include "written/times.h"
#include "written/times2.h"

namespace nb {

void registerWrittenScreens(ScreenRegistry &registry)
{
    registry.add<Add333>("ADD333", "Adding practice");
    registry.add<Sub33>("sub33", "Subtraction practice");
    registry.add<Add333b>("ADD333b", "Adding practice");
    registry.add<Sub33b>("sub33b", "Subtraction practice");
    registry.add<Times2>("times2", "Multiplication practice");
    registry.add<Times>("times", "Multiplication practice");
    registry.add<T22>("t22", "Multiplication practice");
    registry.add<T32>("t32", "Multiplication practice");
    registry.add<Div1Into3WithRemSum>("div1into3withremsum", "Division practice");
    registry.add<Div1Into3Dec>("div1into3dec", "Division practice");
    registry.add<Div1Into3Frac>("div1into3frac", "Division practice");
}

} // namespace nb
