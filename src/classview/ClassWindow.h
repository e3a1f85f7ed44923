#pragma once
// The class overview window: a folder of pupil records as one table, read in the background,
// kept up to date while pupils save, with the files that could not be read listed beside it.
#include "shell/record/ClassRoll.h"

#include <QMainWindow>

class QFileSystemWatcher;
class QLabel;
class QLineEdit;
class QListWidget;
class QProgressBar;
class QTimer;

namespace nb::classview {

class ClassTableModel;
class ClassSortProxy;
class FrozenTableView;

class ClassWindow : public QMainWindow
{
    Q_OBJECT
public:
    explicit ClassWindow(QWidget *parent = nullptr);
    ~ClassWindow() override;

    // Reads a folder (in the background) and shows it; remembers it for the next start.
    void openFolder(const QString &folder);
    QString folder() const { return folder_; }
    bool reading() const { return reading_; }

    ClassTableModel &model() { return *model_; }
    ClassSortProxy &proxy() { return *proxy_; }
    FrozenTableView &table() { return *table_; }
    QListWidget &badFiles() { return *badFiles_; }
    void setFilter(const QString &text);

    // The folder shown when nothing was remembered: the records folder in the documents folder.
    static QString defaultFolder();

signals:
    // A reading has finished and the table shows it.
    void shown();

private:
    void chooseFolder();
    void exportCsv();
    void print(bool pdf);
    void startReading();
    void showRoll(int generation, std::optional<record::ClassRoll> roll, const QString &problem);
    void hideUnusedColumns();

    QString folder_;
    ClassTableModel *model_;
    ClassSortProxy *proxy_;
    FrozenTableView *table_;
    QListWidget *badFiles_;
    QLabel *folderLabel_;
    QLabel *summary_;
    QLineEdit *filter_;
    QProgressBar *progress_;
    QFileSystemWatcher *watcher_;
    QTimer *reread_;
    int generation_ = 0;
    bool reading_ = false;
    bool again_ = false;
    QThread *worker_ = nullptr;
};

} // namespace nb::classview
