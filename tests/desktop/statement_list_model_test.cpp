#include "desktop/statement_list_model.h"

#include <gtest/gtest.h>

#include <QIcon>

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

class StatementRows : public testing::Test {
protected:
    StatementRows() {
        list.add({.key = "S1", .text = "caf\xE9", .image = 1, .largeImage = 1});
        list.add({.key = "S2", .text = "fleet", .image = 7});
        model.rowsDiffer = [] {};
    }
    QVariant of(int row, int role = Qt::DisplayRole) { return model.data(model.index(row), role); }

    ControlSet controls;
    StatementList list{controls, "lvAny"};
    StatementListModel model{list};
};

TEST_F(StatementRows, AreShownWithTextPictureAndDescription) {
    model.describe = [](int position) { return "row " + std::to_string(position); };
    EXPECT_EQ(model.rowCount(), 2);
    EXPECT_EQ(of(0).toString(), QString::fromUtf8("café"));
    EXPECT_FALSE(of(0, Qt::DecorationRole).value<QIcon>().isNull());
    EXPECT_TRUE(of(1, Qt::DecorationRole).value<QIcon>().isNull());
    EXPECT_EQ(of(1, Qt::AccessibleDescriptionRole).toString(), QStringLiteral("row 2"));
}

TEST_F(StatementRows, AreNoneWithinARowOrBesideThem) {
    EXPECT_EQ(model.rowCount(model.index(0)), 0);
    EXPECT_FALSE(model.data({}, Qt::DisplayRole).isValid());
}

TEST_F(StatementRows, CanBeDraggedAndTakeDropsBesideThemAlone) {
    EXPECT_TRUE(model.flags(model.index(0)) & Qt::ItemIsDragEnabled);
    EXPECT_FALSE(model.flags(model.index(0)) & Qt::ItemIsDropEnabled);
    EXPECT_EQ(model.flags({}), Qt::ItemIsDropEnabled);
}

TEST_F(StatementRows, TellOfEachThatComesGoesOrChanges) {
    int changed = 0, came = 0;
    QObject::connect(&model, &QAbstractItemModel::dataChanged,
                     [&](const QModelIndex& at) { changed = at.row() + 1; });
    model.rowCameIn = [&](int position) { came = position; };
    list.setText(2, "own fleet");
    EXPECT_EQ(changed, 2);
    list.insert(1, {.key = "S3", .text = "new"});
    EXPECT_EQ(came, 1);
    EXPECT_EQ(model.rowCount(), 3);
    list.remove(2);
    EXPECT_EQ(of(1).toString(), QStringLiteral("own fleet"));
    list.clear();
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(StatementRows, SayThatTheyChangeOnlyWhileTheyDo) {
    bool changing = false;
    QObject::connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved,
                     [&] { changing = model.isChanging(); });
    list.remove(1);
    EXPECT_TRUE(changing);
    EXPECT_FALSE(model.isChanging());
}

}  // namespace

}  // namespace orvanta::test
