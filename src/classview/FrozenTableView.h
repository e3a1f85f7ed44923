#pragma once
// A table whose first column stays in place while the others scroll sideways: a second view
// showing only that column lies over the left edge and scrolls up and down with the table.
#include <QTableView>

namespace nb::classview {

class FrozenTableView : public QTableView
{
    Q_OBJECT
public:
    explicit FrozenTableView(QWidget *parent = nullptr);
    void setModel(QAbstractItemModel *model) override;
    // The view over the frozen column (for tests and for keeping column widths in step).
    QTableView *frozen() const { return frozen_; }

protected:
    void resizeEvent(QResizeEvent *event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;

private:
    void placeFrozen();
    void showOnlyFirstColumn();

    QTableView *frozen_;
};

} // namespace nb::classview
