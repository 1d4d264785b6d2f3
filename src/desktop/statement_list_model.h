#pragma once

#include <QAbstractListModel>
#include <functional>

#include "view/statement_list.h"

namespace orvanta::desktop {

/// Shows the rows of a statement list to Qt. It holds none of them.
class StatementListModel : public QAbstractListModel, public StatementListObserver {
public:
    explicit StatementListModel(StatementList& list, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// True while the rows change: what Qt then says of the selection is not a person's act.
    bool isChanging() const { return m_changing; }

    std::function<std::string(int position)> describe;  // for those who do not see the row
    std::function<void()> selectionMayDiffer;           // the view's is to follow the list's
    std::function<void(int position)> rowCameIn;
    std::function<void(int position)> rowWentOut;  // 0: all did
    std::function<void()> rowsDiffer;              // one was changed or taken out, or all were

private:
    void rowAboutToBeInserted(int position) override;
    void rowInserted(int position) override;
    void rowAboutToBeRemoved(int position) override;
    void rowRemoved(int position) override;
    void rowChanged(int position) override;
    void aboutToBeCleared() override;
    void cleared() override;
    void selectionChanged() override { selectionMayDiffer(); }

    StatementList& m_list;
    bool m_changing = false;
};

}  // namespace orvanta::desktop
