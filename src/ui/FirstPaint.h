#pragma once
// For the start-up benchmark: watches a window and, once it has painted for the first time,
// prints "painted <resident KiB>" on standard output and quits the application.
#include <QObject>

namespace nb::ui {

class FirstPaintReporter : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool done_ = false;
};

// The process's resident memory in KiB (from /proc), or -1 when it cannot be read.
long residentKib();

} // namespace nb::ui
