#include "ui/QtPlatform.h"

#include "ui/Look.h"
#include "ui/MainWindow.h"
#include "ui/ScreenView.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>
#include <QStorageInfo>

namespace nb::ui {

namespace {

// Pauses the screen timers for as long as a box is open, even if answering it throws.
class TimersPaused
{
public:
    explicit TimersPaused(MainWindow *w)
        : w_(w)
    {
        if (w_)
            w_->pauseTimers();
    }
    ~TimersPaused()
    {
        if (w_)
            w_->resumeTimers();
    }
    TimersPaused(const TimersPaused &) = delete;
    TimersPaused &operator=(const TimersPaused &) = delete;

private:
    MainWindow *w_;
};

} // namespace

QtPlatform::QtPlatform(QString settingsFile)
    : sound_(std::move(settingsFile))
{}

BoxAnswer QtPlatform::openBox(const BoxRequest &request)
{
    if (window_) {
        // The pupil sees the screen as the event left it so far (say, the last answer counted)
        // behind the box.
        window_->syncAll();
        if (window_->isVisible())
            window_->repaint();
    }
    const TimersPaused paused(window_);
    return answerer_ ? answerer_(request) : showDialog(request);
}

BoxAnswer QtPlatform::showDialog(const BoxRequest &request)
{
    const ScreenView *front = window_ ? window_->frontView() : nullptr;
    return ProgramBox::run(request, front ? front->scale() : 1.0, window_);
}

void QtPlatform::message(const std::string &text, const std::string &title, MsgIcon icon,
                         const std::string &details)
{
    openBox(
        {BoxRequest::Kind::Message, text, title.empty() ? "NUMBROOK" : title, {}, icon, details});
}

int QtPlatform::askYesNo(const std::string &text, const std::string &title)
{
    const BoxAnswer a = openBox(
        {BoxRequest::Kind::YesNo, text, title.empty() ? "NUMBROOK" : title, {}, MsgIcon::None, {}});
    return a.button == kYes || a.button == kCancel ? a.button : kNo;
}

std::string QtPlatform::inputBox(const std::string &prompt, const std::string &title,
                                 const std::string &defaultText)
{
    return openBox({BoxRequest::Kind::Input,
                    prompt,
                    title.empty() ? "NUMBROOK" : title,
                    defaultText,
                    MsgIcon::None,
                    {}})
        .text;
}

std::chrono::system_clock::time_point QtPlatform::now()
{
    return std::chrono::system_clock::now();
}

std::string QtPlatform::documentsFolder()
{
    QString docs = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (docs.isEmpty())
        docs = QDir::homePath();
    return docs.toStdString();
}

std::vector<std::string> QtPlatform::drives()
{
    std::vector<std::string> out{"/"};
    auto add = [&out](const QString &path) {
        const std::string p = QDir::cleanPath(path).toStdString();
        if (std::find(out.begin(), out.end(), p) == out.end())
            out.push_back(p);
    };
    add(QDir::homePath());
    // Removable media appear as mounts under these folders.
    for (const QStorageInfo &volume : QStorageInfo::mountedVolumes()) {
        const QString root = volume.rootPath();
        if (volume.isValid() && volume.isReady() &&
            (root.startsWith("/media/") || root.startsWith("/mnt/") ||
             root.startsWith("/run/media/")))
            add(root);
    }
    return out;
}

PrintOutcome QtPlatform::printScreen(const Screen &screen, const std::string &pdfPath)
{
    PrintOutcome out;
    ScreenView *view = window_ ? window_->viewOf(screen) : nullptr;
    if (!view) {
        out.detail = "the screen is not shown";
        return out;
    }
    view->sync();
    const QPixmap image = view->snapshot();

    const QPrinterInfo printerInfo = QPrinterInfo::defaultPrinter();
    const bool toPrinter = !printerInfo.isNull();
    QPrinter printer(QPrinter::HighResolution);
    if (toPrinter) {
        printer.setPrinterName(printerInfo.printerName());
    } else {
        if (pdfPath.empty()) {
            out.detail = "no printer and no file to save to";
            return out;
        }
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(qs(pdfPath));
    }
    printer.setPageOrientation(image.width() > image.height() ? QPageLayout::Landscape
                                                              : QPageLayout::Portrait);
    QPainter p;
    if (!p.begin(&printer)) {
        out.detail = toPrinter ? "the printer could not be used" : "could not write " + pdfPath;
        return out;
    }
    const QRect page = p.viewport();
    QSize fitted = image.size();
    fitted.scale(page.size(), Qt::KeepAspectRatio);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.drawPixmap(QRect(QPoint(page.x() + (page.width() - fitted.width()) / 2, page.y()), fitted),
                 image);
    p.end();
    out.kind = toPrinter ? PrintOutcome::Kind::Printed : PrintOutcome::Kind::SavedPdf;
    if (!toPrinter)
        out.detail = pdfPath;
    return out;
}

} // namespace nb::ui
