// The class overview window over a folder of records: columns nobody used are hidden, sorting
// puts numbers in numeric order with empty cells last, the name filter and the frozen name
// column work, bad files are listed, and a pupil saving into the folder shows up by itself.
#include "classview/ClassWindow.h"
#include "classview/ClassPrint.h"
#include "classview/ClassTableModel.h"
#include "classview/FrozenTableView.h"
#include "shell/AchievementTable.h"
#include "shell/record/RecordCodec.h"

#include <QFileInfo>
#include <QListWidget>
#include <QPrinter>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <fstream>

namespace nb::classview {
namespace {

void writePupil(const QString &folder, const std::string &file, const std::string &name,
                double mulBest)
{
    PupilProgress p;
    p.PupilName = Value::text(name);
    if (mulBest > 0)
        p.MulBest = Value::real(mulBest);
    std::ofstream((folder + "/").toStdString() + file, std::ios::binary) << record::encode(p);
}

int columnOf(const std::string &heading)
{
    const auto &all = achievementSlots();
    for (std::size_t i = 0; i < all.size(); ++i)
        if (all[i].heading == heading)
            return ClassTableModel::kFirstSlotColumn + int(i);
    return -1;
}

QStringList column(ClassWindow &w, int c)
{
    QStringList out;
    for (int r = 0; r < w.proxy().rowCount(); ++r)
        out << w.proxy().index(r, c).data().toString();
    return out;
}

TEST(ClassWindow, ShowsSortsFiltersAndFollowsTheFolder)
{
    QStandardPaths::setTestModeEnabled(true); // the remembered folder goes to a test place
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    writePupil(dir.path(), "a.DAT", "Ann", 100);
    writePupil(dir.path(), "b.DAT", "Ben", 9.5);
    writePupil(dir.path(), "c.DAT", "Cal", 0);
    writePupil(dir.path(), "d.DAT", "Dee", 10);
    std::ofstream((dir.path() + "/bad.DAT").toStdString()) << "rubbish";

    ClassWindow w;
    QSignalSpy shown(&w, &ClassWindow::shown);
    w.openFolder(dir.path());
    ASSERT_TRUE(shown.wait(10000));
    EXPECT_EQ(w.model().rowCount(), 4);
    EXPECT_EQ(w.badFiles().count(), 1);
    EXPECT_TRUE(w.badFiles().item(0)->text().startsWith("bad.DAT: "));

    const int times = columnOf("Times tables");
    EXPECT_FALSE(w.table().isColumnHidden(times));
    EXPECT_TRUE(w.table().isColumnHidden(columnOf("Addition 1 / Normal"))) << "nobody used it";
    EXPECT_FALSE(w.table().frozen()->isColumnHidden(ClassTableModel::kPupilColumn));
    EXPECT_TRUE(w.table().frozen()->isColumnHidden(times)) << "only names stay frozen";

    w.table().sortByColumn(times, Qt::AscendingOrder);
    EXPECT_EQ(column(w, times), (QStringList{"9.5", "10", "100", ""}));
    w.table().sortByColumn(times, Qt::DescendingOrder);
    EXPECT_EQ(column(w, times), (QStringList{"100", "10", "9.5", ""})) << "empty stays last";
    EXPECT_EQ(w.proxy().shownRows().size(), 4u);

    w.table().sortByColumn(ClassTableModel::kPupilColumn, Qt::AscendingOrder);
    w.setFilter("e");
    EXPECT_EQ(column(w, ClassTableModel::kPupilColumn), (QStringList{"Ben", "Dee"}));
    w.setFilter("");

    // On paper: a landscape PDF with every shown row.
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(dir.filePath("class.pdf"));
    printRoll(printer, w.model().roll(), w.proxy().shownRows(), "22 November 2026");
    EXPECT_GT(QFileInfo(dir.filePath("class.pdf")).size(), 1000);

    // A pupil saves a new record: the folder is read again without being asked.
    writePupil(dir.path(), "e.DAT", "Eve", 42);
    ASSERT_TRUE(shown.wait(10000));
    while (w.reading() && shown.wait(10000)) {
    }
    EXPECT_EQ(w.model().rowCount(), 5);
}

} // namespace
} // namespace nb::classview
