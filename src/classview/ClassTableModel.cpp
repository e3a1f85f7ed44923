#include "classview/ClassTableModel.h"

#include "core/NumberText.h"
#include "shell/AchievementTable.h"

#include <QCollator>

namespace nb::classview {

namespace {

// The number a cell reads as, for sorting: "37.5" → 37.5, "level3" → 3; nullopt for other text.
std::optional<double> cellNumber(const std::string &text)
{
    std::string_view t = text;
    if (t.rfind("level", 0) == 0)
        t.remove_prefix(5);
    if (t.empty() || !isCleanNumberText(t))
        return std::nullopt;
    return readNumber(t);
}

} // namespace

ClassTableModel::ClassTableModel(QObject *parent)
    : QAbstractTableModel(parent)
{}

void ClassTableModel::setRoll(record::ClassRoll roll)
{
    beginResetModel();
    roll_ = std::move(roll);
    endResetModel();
}

bool ClassTableModel::columnUsed(int column) const
{
    const int slot = column - kFirstSlotColumn;
    return slot < 0 || (std::size_t(slot) < roll_.used.size() && roll_.used[std::size_t(slot)]);
}

int ClassTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(roll_.pupils.size());
}

int ClassTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : kFirstSlotColumn + int(achievementSlots().size());
}

QVariant ClassTableModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const record::PupilRow &row = roll_.pupils[std::size_t(index.row())];
    const int slot = index.column() - kFirstSlotColumn;
    const std::string &text = index.column() == kPupilColumn  ? row.name
                              : index.column() == kFileColumn ? row.file
                                                              : row.cells.at(std::size_t(slot));
    switch (role) {
    case Qt::DisplayRole:
        return QString::fromStdString(text);
    case Qt::UserRole:
        if (slot >= 0)
            if (const auto n = cellNumber(text))
                return *n;
        return QString::fromStdString(text);
    case Qt::TextAlignmentRole:
        return slot >= 0 ? QVariant(Qt::AlignCenter) : QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::ToolTipRole:
        if (index.column() == kPupilColumn)
            return QString::fromStdString((roll_.folder / row.file).string());
        return {};
    default:
        return {};
    }
}

QVariant ClassTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Vertical)
        return section + 1;
    if (section == kPupilColumn)
        return tr("Pupil");
    if (section == kFileColumn)
        return tr("File");
    const auto &slotList = achievementSlots();
    const int slot = section - kFirstSlotColumn;
    if (slot < 0 || std::size_t(slot) >= slotList.size())
        return {};
    return QString::fromStdString(slotList[std::size_t(slot)].heading);
}

ClassSortProxy::ClassSortProxy(QObject *parent)
    : QSortFilterProxyModel(parent)
{
    setSortRole(Qt::UserRole);
    setFilterKeyColumn(ClassTableModel::kPupilColumn);
    setFilterCaseSensitivity(Qt::CaseInsensitive);
}

bool ClassSortProxy::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    const QVariant a = left.data(Qt::UserRole);
    const QVariant b = right.data(Qt::UserRole);
    const bool aEmpty = a.typeId() == QMetaType::QString && a.toString().isEmpty();
    const bool bEmpty = b.typeId() == QMetaType::QString && b.toString().isEmpty();
    // Pupils without a result come last whichever way the column is sorted.
    if (aEmpty != bEmpty)
        return sortOrder() == Qt::AscendingOrder ? bEmpty : aEmpty;
    const bool aNumber = a.typeId() == QMetaType::Double;
    const bool bNumber = b.typeId() == QMetaType::Double;
    if (aNumber && bNumber)
        return a.toDouble() < b.toDouble();
    if (aNumber != bNumber)
        return aNumber; // numbers before words such as "Champion."
    static const QCollator collator = [] {
        QCollator c;
        c.setCaseSensitivity(Qt::CaseInsensitive);
        c.setNumericMode(true);
        return c;
    }();
    return collator.compare(a.toString(), b.toString()) < 0;
}

std::vector<int> ClassSortProxy::shownRows() const
{
    std::vector<int> rows;
    for (int r = 0; r < rowCount(); ++r)
        rows.push_back(mapToSource(index(r, 0)).row());
    return rows;
}

} // namespace nb::classview
