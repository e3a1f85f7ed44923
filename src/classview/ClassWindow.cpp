#include "classview/ClassWindow.h"

#include "classview/ClassPrint.h"
#include "classview/ClassTableModel.h"
#include "classview/FrozenTableView.h"

#include <QDate>
#include <QDir>
#include <QFileDialog>
#include <QFileSystemWatcher>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressBar>
#include <QPushButton>
#include <QSaveFile>
#include <QSettings>
#include <QSplitter>
#include <QStandardPaths>
#include <QStatusBar>
#include <QThread>
#include <QTimer>
#include <QVBoxLayout>

namespace nb::classview {

namespace {
QSettings settings()
{
    return QSettings(QSettings::NativeFormat, QSettings::UserScope, "NUMBROOK", "numbrook-class");
}
} // namespace

ClassWindow::ClassWindow(QWidget *parent)
    : QMainWindow(parent)
    , model_(new ClassTableModel(this))
    , proxy_(new ClassSortProxy(this))
    , table_(new FrozenTableView)
    , badFiles_(new QListWidget)
    , folderLabel_(new QLabel)
    , summary_(new QLabel)
    , filter_(new QLineEdit)
    , progress_(new QProgressBar)
    , watcher_(new QFileSystemWatcher(this))
    , reread_(new QTimer(this))
{
    setWindowTitle(tr("NUMBROOK class overview"));
    resize(1200, 720);

    auto *central = new QWidget;
    auto *layout = new QVBoxLayout(central);
    auto *bar = new QHBoxLayout;
    auto *open = new QPushButton(tr("Open folder…"));
    auto *csv = new QPushButton(tr("Export CSV…"));
    auto *print = new QPushButton(tr("Print…"));
    auto *pdf = new QPushButton(tr("Save as PDF…"));
    filter_->setPlaceholderText(tr("Find a pupil by name"));
    filter_->setClearButtonEnabled(true);
    filter_->setAccessibleName(tr("Pupil name filter"));
    bar->addWidget(open);
    bar->addWidget(filter_, 1);
    bar->addWidget(csv);
    bar->addWidget(print);
    bar->addWidget(pdf);
    layout->addLayout(bar);
    folderLabel_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(folderLabel_);

    proxy_->setSourceModel(model_);
    table_->setModel(proxy_);
    table_->setSortingEnabled(true);
    table_->sortByColumn(ClassTableModel::kPupilColumn, Qt::AscendingOrder);
    table_->setAlternatingRowColors(true);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->horizontalHeader()->setDefaultSectionSize(110);
    table_->horizontalHeader()->setMinimumSectionSize(60);
    table_->verticalHeader()->hide(); // the frozen name column starts at the table's edge

    auto *side = new QWidget;
    auto *sideLayout = new QVBoxLayout(side);
    sideLayout->setContentsMargins(0, 0, 0, 0);
    sideLayout->addWidget(new QLabel(tr("Files that could not be read")));
    badFiles_->setAccessibleName(tr("Files that could not be read"));
    badFiles_->setWordWrap(true);
    sideLayout->addWidget(badFiles_);
    auto *split = new QSplitter;
    split->addWidget(table_);
    split->addWidget(side);
    split->setStretchFactor(0, 4);
    split->setStretchFactor(1, 1);
    layout->addWidget(split, 1);
    setCentralWidget(central);

    statusBar()->addWidget(summary_, 1);
    statusBar()->addPermanentWidget(progress_);
    progress_->setVisible(false);
    progress_->setMaximumWidth(240);

    connect(open, &QPushButton::clicked, this, [this] { chooseFolder(); });
    connect(csv, &QPushButton::clicked, this, [this] { exportCsv(); });
    connect(print, &QPushButton::clicked, this, [this] { this->print(false); });
    connect(pdf, &QPushButton::clicked, this, [this] { this->print(true); });
    connect(filter_, &QLineEdit::textChanged, this, [this](const QString &t) { setFilter(t); });
    // A pupil saving changes the folder: read it again once the changes have settled.
    reread_->setSingleShot(true);
    reread_->setInterval(400);
    connect(reread_, &QTimer::timeout, this, [this] { startReading(); });
    connect(watcher_, &QFileSystemWatcher::directoryChanged, reread_, qOverload<>(&QTimer::start));
    connect(watcher_, &QFileSystemWatcher::fileChanged, reread_, qOverload<>(&QTimer::start));
}

ClassWindow::~ClassWindow()
{
    if (worker_) {
        worker_->wait();
        delete worker_;
    }
}

QString ClassWindow::defaultFolder()
{
    const QString remembered = settings().value("folder").toString();
    if (!remembered.isEmpty() && QDir(remembered).exists())
        return remembered;
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir(documents.isEmpty() ? QDir::homePath() : documents).filePath("NUMBROOK records");
}

void ClassWindow::setFilter(const QString &text)
{
    if (filter_->text() != text)
        filter_->setText(text);
    proxy_->setFilterFixedString(text);
}

void ClassWindow::openFolder(const QString &folder)
{
    if (!watcher_->directories().isEmpty())
        watcher_->removePaths(watcher_->directories());
    folder_ = folder;
    folderLabel_->setText(tr("Folder: %1").arg(QDir::toNativeSeparators(folder)));
    folderLabel_->setToolTip(folder);
    if (QDir(folder).exists()) {
        watcher_->addPath(folder);
        settings().setValue("folder", folder);
    }
    startReading();
}

void ClassWindow::chooseFolder()
{
    const QString chosen =
        QFileDialog::getExistingDirectory(this, tr("Choose the folder of pupil records"), folder_);
    if (!chosen.isEmpty())
        openFolder(chosen);
}

void ClassWindow::startReading()
{
    if (reading_) {
        again_ = true; // read once more when this reading is done
        return;
    }
    reading_ = true;
    again_ = false;
    const int generation = ++generation_;
    progress_->setValue(0);
    progress_->setVisible(true);
    const std::filesystem::path folder = folder_.toStdString();
    if (worker_) {
        worker_->wait();
        delete worker_;
    }
    // The files are read on a worker thread; progress and the result come back as queued calls,
    // so the window never waits for a slow shared drive.
    worker_ = QThread::create([this, folder, generation] {
        std::string problem;
        auto roll = record::readClassFolder(folder, problem, [this](int done, int total) {
            if (done % 25 == 0 || done == total)
                QMetaObject::invokeMethod(
                    this,
                    [this, done, total] {
                        progress_->setMaximum(total);
                        progress_->setValue(done);
                    },
                    Qt::QueuedConnection);
        });
        QMetaObject::invokeMethod(
            this,
            [this, generation, roll = std::move(roll), problem]() mutable {
                showRoll(generation, std::move(roll), QString::fromStdString(problem));
            },
            Qt::QueuedConnection);
    });
    worker_->start();
}

void ClassWindow::showRoll(int generation, std::optional<record::ClassRoll> roll,
                           const QString &problem)
{
    reading_ = false;
    progress_->setVisible(false);
    if (generation != generation_)
        return;
    if (!roll) {
        model_->setRoll({});
        badFiles_->clear();
        summary_->setText(tr("The folder could not be read: %1").arg(problem));
    } else {
        const int pupils = int(roll->pupils.size());
        const int bad = int(roll->bad.size());
        badFiles_->clear();
        for (const record::BadFile &b : roll->bad) {
            auto *item = new QListWidgetItem(QString::fromStdString(b.file + ": " + b.reason));
            item->setToolTip(QString::fromStdString(b.reason));
            badFiles_->addItem(item);
        }
        model_->setRoll(std::move(*roll));
        hideUnusedColumns();
        summary_->setText(bad ? tr("%n pupil(s); ", nullptr, pupils) +
                                    tr("%n file(s) could not be read", nullptr, bad)
                              : tr("%n pupil(s)", nullptr, pupils));
    }
    if (again_)
        startReading();
    emit shown();
}

void ClassWindow::hideUnusedColumns()
{
    for (int c = 0; c < model_->columnCount(); ++c)
        table_->setColumnHidden(c, !model_->columnUsed(c));
    // Wide enough for each heading and value; names get a little more room.
    table_->resizeColumnsToContents();
    QHeaderView *header = table_->horizontalHeader();
    header->resizeSection(ClassTableModel::kPupilColumn,
                          std::max(header->sectionSize(ClassTableModel::kPupilColumn) + 24, 160));
}

void ClassWindow::exportCsv()
{
    const QString file =
        QFileDialog::getSaveFileName(this, tr("Export the table as CSV"),
                                     QDir(folder_).filePath("class.csv"), tr("CSV files (*.csv)"));
    if (file.isEmpty())
        return;
    const std::string csv = record::classCsv(model_->roll(), proxy_->shownRows());
    QSaveFile out(file);
    if (!out.open(QIODevice::WriteOnly) || out.write(csv.data(), qint64(csv.size())) < 0 ||
        !out.commit())
        QMessageBox::warning(this, windowTitle(),
                             tr("The table could not be saved as %1: %2")
                                 .arg(QDir::toNativeSeparators(file), out.errorString()));
}

void ClassWindow::print(bool pdf)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageOrientation(QPageLayout::Landscape);
    if (pdf) {
        const QString file = QFileDialog::getSaveFileName(this, tr("Save the table as PDF"),
                                                          QDir(folder_).filePath("class.pdf"),
                                                          tr("PDF files (*.pdf)"));
        if (file.isEmpty())
            return;
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(file);
    } else {
        QPrintDialog dialog(&printer, this);
        if (dialog.exec() != QDialog::Accepted)
            return;
    }
    printRoll(printer, model_->roll(), proxy_->shownRows(),
              QLocale().toString(QDate::currentDate(), QLocale::LongFormat));
}

} // namespace nb::classview
