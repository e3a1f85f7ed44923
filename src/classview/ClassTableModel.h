#pragma once
// The class table for Qt's views: one row per pupil, the columns "Pupil", "File" and one per
// achievements slot. Sorting goes by Qt::UserRole: numbers as numbers ("level3" as 3), empty
// cells after all others; the proxy filters by pupil name.
#include "shell/record/ClassRoll.h"

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>

namespace nb::classview {

class ClassTableModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    static constexpr int kPupilColumn = 0;
    static constexpr int kFileColumn = 1;
    static constexpr int kFirstSlotColumn = 2;

    explicit ClassTableModel(QObject *parent = nullptr);

    void setRoll(record::ClassRoll roll);
    const record::ClassRoll &roll() const { return roll_; }
    // Whether anybody has a result in the column (the pupil and file columns always count).
    bool columnUsed(int column) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    record::ClassRoll roll_;
};

class ClassSortProxy : public QSortFilterProxyModel
{
    Q_OBJECT
public:
    explicit ClassSortProxy(QObject *parent = nullptr);
    // The rows in the order shown, as indexes into the roll.
    std::vector<int> shownRows() const;

protected:
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;
};

} // namespace nb::classview
