#include "desktop/file_chooser.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QHeaderView>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTreeView>
#include <QtTest>

#include "desktop/conversions.h"

namespace orvanta::test {

using namespace orvanta::desktop;

TEST(FileChooser, ShowsTheSizeTheKindAndTheDateOfAFileWhole) {
    const QTemporaryDir folder;
    const QString name = QString(90, u'n') + QStringLiteral(".bsm");
    QFile(folder.filePath(name)).open(QIODevice::WriteOnly);
    FileChooser chooser({.mode = FileDialogMode::Open,
                         .filter = "All Brainstorming Files (*.bsm)|*.bsm",
                         .initialPath = toCp1252(folder.path()),
                         .fileName = {}},
                        nullptr);
    chooser.show();
    auto& files = *chooser.findChild<QTreeView*>(QStringLiteral("treeView"));
    ASSERT_TRUE(
        QTest::qWaitFor([&files] { return files.model()->rowCount(files.rootIndex()) == 1; }));
    QCoreApplication::processEvents();
    EXPECT_FALSE(files.horizontalScrollBar()->isVisible());
    for (int column = 1; column < files.header()->count(); ++column)
        EXPECT_GE(files.columnWidth(column),
                  static_cast<const QAbstractItemView&>(files).sizeHintForColumn(column))
            << column;
}

}  // namespace orvanta::test
