#include "desktop/file_pictures.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QToolButton>
#include <QTreeView>
#include <QtTest>

#include "desktop/file_chooser.h"
#include "own_pictures.h"
#include "temporary_folder.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

/// The file dialog in a folder with another folder and a file.
class FileDialogPictures : public testing::Test {
protected:
    FileDialogPictures() {
        std::filesystem::create_directory(folder / "Team");
        folder.write("team.bsm", "");
        chooser = std::make_unique<FileChooser>(
            FileDialogRequest{.mode = FileDialogMode::Open,
                              .filter = "All Brainstorming Files (*.bsm)|*.bsm",
                              .initialPath = folder.path(),
                              .fileName = {}},
            FileRules::Heeded, nullptr);
        chooser->show();
    }

    /// The name of the picture beside a file; empty until the dialog has found it.
    QString pictureOf(const QString& file) const {
        const auto& files = *chooser->findChild<QTreeView*>(QStringLiteral("treeView"));
        for (int row = 0; row < files.model()->rowCount(files.rootIndex()); ++row) {
            const QModelIndex index = files.model()->index(row, 0, files.rootIndex());
            if (index.data().toString() == file)
                return index.data(Qt::DecorationRole).value<QIcon>().name();
        }
        return {};
    }

    TemporaryFolder folder;
    std::unique_ptr<FileChooser> chooser;
};

}  // namespace

TEST_F(FileDialogPictures, OfItsButtonsAreTheProgramsOwn) {
    const auto buttons = chooser->findChildren<QToolButton*>();
    EXPECT_EQ(buttons.size(), 6);
    for (const QToolButton* button : buttons)
        EXPECT_TRUE(isOwnPicture(button->icon())) << button->toolTip().toStdString();
}

TEST_F(FileDialogPictures, OfFilesAndFoldersAreTheProgramsOwn) {
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return pictureOf(QStringLiteral("team.bsm")) == u"file"; }));
    EXPECT_TRUE(QTest::qWaitFor([this] { return pictureOf(QStringLiteral("Team")) == u"folder"; }));
    const auto& folders = *chooser->findChild<QComboBox*>(QStringLiteral("lookInCombo"));
    EXPECT_EQ(folders.itemIcon(folders.currentIndex()).name(), QStringLiteral("folder"));
}

TEST(FilePictures, TellDrivesFoldersFilesAndTheComputerApart) {
    const FilePictures& pictures = FilePictures::shared();
    QSet<QString> names;
    for (const auto type :
         {FilePictures::Computer, FilePictures::Drive, FilePictures::Folder, FilePictures::File}) {
        EXPECT_TRUE(isOwnPicture(pictures.icon(type))) << type;
        names.insert(pictures.icon(type).name());
    }
    EXPECT_EQ(names.size(), 4);
    EXPECT_EQ(pictures.icon(QFileInfo(QStringLiteral("/"))).name(), QStringLiteral("drive"));
}

}  // namespace orvanta::test
