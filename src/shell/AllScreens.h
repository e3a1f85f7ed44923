#pragma once
#include "core/ScreenRegistry.h"

namespace nb {

// Each subsystem registers its own screens in a file of its own folder.
void registerShellScreens(ScreenRegistry &registry);   // shell/ShellScreens.cpp
void registerRecordScreens(ScreenRegistry &registry);  // shell/record/RecordScreens.cpp
void registerDrillScreens(ScreenRegistry &registry);   // drills/DrillScreens.cpp
void registerWrittenScreens(ScreenRegistry &registry); // written/WrittenScreens.cpp
void registerLayoutScreens(ScreenRegistry &registry);  // layouts/LayoutScreens.cpp
void registerPuzzleScreens(ScreenRegistry &registry);  // puzzles/PuzzleScreens.cpp
void registerGameScreens(ScreenRegistry &registry);    // games/GameScreens.cpp

// Every screen of the program.
void registerAllScreens(ScreenRegistry &registry);

} // namespace nb
