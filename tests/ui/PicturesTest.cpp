// Pictures rendered once are kept on disk and painted back from there; a damaged or missing
// cache file is rendered afresh, never shown damaged.
#include "ui/Pictures.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QStandardPaths>
#include <gtest/gtest.h>

namespace nb::ui {
namespace {

QImage paintCover(bool &painted)
{
    QImage image(640, 480, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter p(&image);
    painted = paintLarge(p, "cover.svg", image.size(), 1.0, {});
    return image;
}

TEST(Pictures, LargePicturesArePaintedBackFromTheirRenderingOnDisk)
{
    QStandardPaths::setTestModeEnabled(true); // the cache folder is a test folder
    QDir folder(QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + "/pictures");
    folder.removeRecursively();

    bool painted = false;
    const QImage first = paintCover(painted);
    ASSERT_TRUE(painted);
    const QStringList files = folder.entryList(QDir::Files);
    ASSERT_EQ(files.size(), 1) << "one rendering kept";
    EXPECT_TRUE(files[0].endsWith("-640x480.px"));
    EXPECT_NE(first.pixel(320, 100), QColor(Qt::black).rgb()) << "the picture was drawn";

    EXPECT_EQ(paintCover(painted), first) << "painted back from disk exactly";

    // A cut file is not shown: the picture is rendered again and the file mended.
    QFile cut(folder.filePath(files[0]));
    ASSERT_TRUE(cut.resize(1000));
    EXPECT_EQ(paintCover(painted), first);
    EXPECT_GT(QFile(folder.filePath(files[0])).size(), 640 * 480 * 4);

    QImage none(10, 10, QImage::Format_ARGB32_Premultiplied);
    QPainter p(&none);
    EXPECT_FALSE(paintLarge(p, "no_such_picture.svg", none.size(), 1.0, {}));
    folder.removeRecursively();
}

} // namespace
} // namespace nb::ui
