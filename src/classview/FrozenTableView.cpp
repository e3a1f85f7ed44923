#include "classview/FrozenTableView.h"

#include <QHeaderView>
#include <QScrollBar>

namespace nb::classview {

FrozenTableView::FrozenTableView(QWidget *parent)
    : QTableView(parent)
    , frozen_(new QTableView(this))
{
    frozen_->setFocusPolicy(Qt::NoFocus);
    frozen_->verticalHeader()->hide();
    frozen_->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    frozen_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    frozen_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    frozen_->setStyleSheet("QTableView { border: none; background-color: #f4f6ff; }");
    viewport()->stackUnder(frozen_);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerPixel);
    frozen_->setVerticalScrollMode(ScrollPerPixel);

    connect(horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int logical, int, int size) {
                if (logical == 0) {
                    frozen_->setColumnWidth(0, size);
                    placeFrozen();
                }
            });
    connect(verticalHeader(), &QHeaderView::sectionResized, this,
            [this](int logical, int, int size) { frozen_->setRowHeight(logical, size); });
    connect(frozen_->verticalScrollBar(), &QAbstractSlider::valueChanged, verticalScrollBar(),
            &QAbstractSlider::setValue);
    connect(verticalScrollBar(), &QAbstractSlider::valueChanged, frozen_->verticalScrollBar(),
            &QAbstractSlider::setValue);
    // Sorting by the frozen column's heading sorts the table.
    connect(frozen_->horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int logical) {
        const Qt::SortOrder order =
            horizontalHeader()->sortIndicatorSection() == logical &&
                    horizontalHeader()->sortIndicatorOrder() == Qt::AscendingOrder
                ? Qt::DescendingOrder
                : Qt::AscendingOrder;
        sortByColumn(logical, order);
    });
}

void FrozenTableView::setModel(QAbstractItemModel *model)
{
    QTableView::setModel(model);
    frozen_->setModel(model);
    frozen_->setSelectionModel(selectionModel());
    connect(model, &QAbstractItemModel::modelReset, this, [this] { showOnlyFirstColumn(); });
    connect(model, &QAbstractItemModel::layoutChanged, this, [this] { showOnlyFirstColumn(); });
    showOnlyFirstColumn();
}

void FrozenTableView::showOnlyFirstColumn()
{
    if (!model())
        return;
    for (int c = 1; c < model()->columnCount(); ++c)
        frozen_->setColumnHidden(c, true);
    frozen_->setColumnWidth(0, columnWidth(0));
    for (int r = 0; r < model()->rowCount(); ++r)
        frozen_->setRowHeight(r, rowHeight(r));
    placeFrozen();
}

void FrozenTableView::placeFrozen()
{
    frozen_->setGeometry(verticalHeader()->width() + frameWidth(), frameWidth(), columnWidth(0),
                         viewport()->height() + horizontalHeader()->height());
    frozen_->horizontalHeader()->setFixedHeight(horizontalHeader()->height());
}

void FrozenTableView::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    placeFrozen();
}

QModelIndex FrozenTableView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    // Moving left must not leave the current cell hidden under the frozen column.
    const QModelIndex current = QTableView::moveCursor(action, modifiers);
    if (action == MoveLeft && current.column() > 0 &&
        visualRect(current).topLeft().x() < frozen_->columnWidth(0)) {
        const int x = visualRect(current).topLeft().x() - frozen_->columnWidth(0);
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() + x);
    }
    return current;
}

void FrozenTableView::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    if (index.column() > 0)
        QTableView::scrollTo(index, hint);
}

} // namespace nb::classview
