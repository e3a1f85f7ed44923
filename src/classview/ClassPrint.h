#pragma once
// The class table on paper or as a PDF: landscape, scaled to fit the page width, with the folder
// and the date in a heading on every page.
#include "shell/record/ClassRoll.h"

#include <QString>

#include <vector>

class QPrinter;

namespace nb::classview {

// Prints the rows (indexes into the roll, in order) with the used columns.
void printRoll(QPrinter &printer, const record::ClassRoll &roll, const std::vector<int> &rows,
               const QString &date);

} // namespace nb::classview
