#include "drills/DrillScreens.h"

#include "drills/add11.h"
#include "drills/div11.h"
#include "drills/makeany.h"
#include "drills/makeanysub.h"
#include "drills/maketen.h"
#include "drills/maketendiv.h"
#include "drills/maketensub.h"
#include "drills/maketentimes.h"
#include "drills/mentmul.h"
#include "drills/mul11.h"
#include "drills/sub11.h"

namespace nb {

void registerDrillScreens(ScreenRegistry &registry)
{
    registry.add<Add11>("add11", "Addition practice");
    registry.add<Sub11>("sub11", "Subtraction practice");
    registry.add<Mul11>("mul11", "Times tables");
    registry.add<MentMul>("mentmul", "Mental times");
    registry.add<Div11>("div11", "Division practice");
    registry.add<MakeTen>("maketen", "Make 10");
    registry.add<MakeAny>("makeany", "Make the total");
    registry.add<MakeTenSub>("maketensub", "Take away to make 10");
    registry.add<MakeAnySub>("makeanysub", "Take away to make the number");
    registry.add<MakeTenTimes>("maketentimes", "Missing factor");
    registry.add<MakeTenDiv>("maketendiv", "Missing divisor");
}

} // namespace nb
