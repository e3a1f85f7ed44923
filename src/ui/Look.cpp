#include "ui/Look.h"

#include <QApplication>
#include <QPixmapCache>
#include <QStyleFactory>

#include <cmath>

namespace nb::ui {

QFont makeFont(const std::string &family, double points, bool bold, double scale)
{
    QFont f(QString::fromStdString(family));
    f.setPixelSize(std::max(1, int(std::lround(points * 20.0 / kTwipsPerPixel * scale))));
    f.setBold(bold);
    f.setStyleStrategy(QFont::PreferAntialias);
    return f;
}

void setUpApplication(QApplication &app)
{
    app.setApplicationName("NUMBROOK");
    // No display name: Qt would append it to every window title, and each screen's title must
    // stand alone ("MENU", not "MENU — NUMBROOK").
    // Rendered pictures are kept between screens; a full-window cover at 4K is about 33 MB.
    QPixmapCache::setCacheLimit(64 * 1024);
    if (QStyle *fusion = QStyleFactory::create("Fusion"))
        QApplication::setStyle(fusion);
    // The layouts are designed for a rounded, child-friendly face. Missing families in the list
    // are skipped, and with none of them installed Qt's own default is used.
    QFont::insertSubstitutions("Comic Sans MS",
                               {"Comic Neue", "Comic Sans", "Chalkboard SE", "DejaVu Sans"});
    QFont base("Comic Sans MS");
    base.setPointSize(13);
    QApplication::setFont(base);
}

bool testIdsWanted()
{
    static const bool wanted = qEnvironmentVariable("NUMBROOK_TEST_IDS") == "1";
    return wanted;
}

} // namespace nb::ui
