#include "desktop/statement_list_model.h"

#include <cassert>

#include "desktop/art.h"
#include "desktop/conversions.h"

namespace orvanta::desktop {

StatementListModel::StatementListModel(StatementList& list, QObject* parent)
    : QAbstractListModel(parent),
      describe([](int) { return std::string(); }),
      selectionMayDiffer([] {}),
      rowCameIn([](int) {}),
      rowWentOut([](int) {}),
      m_list(list) {
    list.watch(*this);
}

int StatementListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_list.count();
}

QVariant StatementListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= m_list.count()) return {};
    const Row& row = m_list.row(index.row() + 1);
    switch (role) {
        case Qt::DisplayRole:
            return fromCp1252(row.text);
        case Qt::DecorationRole:
            return rowIcon(row.image);
        case Qt::AccessibleDescriptionRole:
            return fromCp1252(describe(index.row() + 1));
        default:
            return {};
    }
}

Qt::ItemFlags StatementListModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) return Qt::ItemIsDropEnabled;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled |
           Qt::ItemNeverHasChildren;
}

void StatementListModel::rowAboutToBeInserted(int position) {
    m_changing = true;
    beginInsertRows({}, position - 1, position - 1);
}

void StatementListModel::rowInserted(int position) {
    assert(m_changing);
    endInsertRows();
    m_changing = false;
    rowCameIn(position);
}

void StatementListModel::rowAboutToBeRemoved(int position) {
    m_changing = true;
    beginRemoveRows({}, position - 1, position - 1);
}

void StatementListModel::rowRemoved(int position) {
    assert(m_changing);
    endRemoveRows();
    m_changing = false;
    rowWentOut(position);
    rowsDiffer();
    selectionMayDiffer();
}

void StatementListModel::rowChanged(int position) {
    const QModelIndex changed = index(position - 1);
    emit dataChanged(changed, changed);
    rowsDiffer();
}

void StatementListModel::aboutToBeCleared() {
    m_changing = true;
    beginResetModel();
}

void StatementListModel::cleared() {
    assert(m_changing);
    endResetModel();
    m_changing = false;
    rowWentOut(0);
    rowsDiffer();
    selectionMayDiffer();
}

}  // namespace orvanta::desktop
