#include "ui/FirstPaint.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QTimer>

#include <cstdio>

namespace nb::ui {

long residentKib()
{
    QFile f("/proc/self/status");
    if (!f.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : f.readAll().split('\n'))
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').value(0).toLong();
    return -1;
}

bool FirstPaintReporter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint && !done_) {
        done_ = true;
        // Report after the paint has finished and reached the screen.
        QTimer::singleShot(0, [] {
            std::printf("painted %ld\n", residentKib());
            std::fflush(stdout);
            QCoreApplication::quit();
        });
    }
    return QObject::eventFilter(watched, event);
}

} // namespace nb::ui
