#include "desktop/file_list_view.h"

#include <QDir>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QTimer>
#include <QUrl>
#include <utility>

#include "app/list_hints.h"
#include "core/constants.h"
#include "desktop/conversions.h"
#include "desktop/file_chooser.h"
#include "desktop/statement_row_painter.h"

namespace orvanta::desktop {

namespace {

QStringList localFilesIn(const QMimeData& load) {
    QStringList files;
    for (const QUrl& url : load.urls())
        if (url.isLocalFile()) files.append(url.toLocalFile());
    return files;
}

/// Takes files to copy only: a file manager would delete those that are moved.
void takeFiles(QDropEvent& event) {
    const bool taken =
        event.possibleActions() & Qt::CopyAction && !localFilesIn(*event.mimeData()).isEmpty();
    event.setDropAction(taken ? Qt::CopyAction : Qt::IgnoreAction);
    event.setAccepted(taken);
}

/// The toolkit draws a frame around the row that the keys begin at, which would look chosen. A
/// chosen row is active, as the style sheet has it, while its list has the keyboard.
class FileRows : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->state.setFlag(QStyle::State_HasFocus, false);
        option->state.setFlag(QStyle::State_Active, option->widget->hasFocus());
    }
};

}  // namespace

FileListView::FileListView(ListBox& model, Dropped dropped, QWidget* parent)
    : QListWidget(parent), m_model(model), m_dropped(std::move(dropped)) {
    setTextElideMode(Qt::ElideMiddle);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setItemDelegate(new FileRows(this));
    setAcceptDrops(true);
    connect(this, &QListWidget::itemSelectionChanged, this, [this] {
        const auto chosen = selectedItems();
        m_model.setSelectedIndex(chosen.isEmpty() ? -1 : row(chosen.front()));
    });
}

void FileListView::showFiles() {
    const QSignalBlocker silence(this);
    const int before = count();
    fitItems();
    const int chosen = m_model.selectedIndex();
    if (currentRow() != chosen || selectedItems().isEmpty()) setCurrentRow(chosen);
    if (count() > before) scrollToItem(item(count() - 1));
}

/// What stays is left alone, so that the list keeps its place.
void FileListView::fitItems() {
    int row = 0;
    for (const std::string& path : m_model.items()) {
        const QString shown = fromPath(path);
        while (row < count() && item(row)->text() != shown) delete takeItem(row);
        if (row == count()) {
            addItem(shown);
            item(row)->setToolTip(shownToolTip(shown));
        }
        ++row;
    }
    while (count() > row) delete takeItem(count() - 1);
}

/// The first key in a list where nothing is chosen chooses its first file.
void FileListView::keyPressEvent(QKeyEvent* event) {
    const bool moves = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
    if (!moves || m_model.hasSelection() || count() == 0) return QListWidget::keyPressEvent(event);
    m_model.setSelectedIndex(0);
}

void FileListView::dragEnterEvent(QDragEnterEvent* event) { takeFiles(*event); }
void FileListView::dragMoveEvent(QDragMoveEvent* event) { takeFiles(*event); }

/// A file manager waits until the drop is over, so the files are added, with all that is to be said
/// of them, behind it.
void FileListView::dropEvent(QDropEvent* event) {
    takeFiles(*event);
    if (!event->isAccepted()) return;
    QTimer::singleShot(0, this,
                       [this, files = localFilesIn(*event->mimeData())] { takeDropped(files); });
}

void FileListView::takeDropped(const QStringList& files) {
    const FileDialogPlace place{.mode = FileDialogMode::Open,
                                .filter = std::string(brainstormFilter),
                                .folder = QDir::rootPath().toStdString(),
                                .home = QDir::homePath().toStdString()};
    for (const QString& file : files) {
        const FileChoice choice = fileChoiceOf(place, file.toStdString());
        if (choice.act == FileChoiceAct::TakeFile)
            m_dropped(toPath(QString::fromStdString(choice.path)));
        else
            boxOfRefusal(choice, window())->exec();
    }
}

void FileListView::paintEvent(QPaintEvent* event) {
    QListWidget::paintEvent(event);
    QPainter painter(viewport());
    drawHint(painter, *viewport(), 0, fromCp1252(hintIn(m_model)));
}

}  // namespace orvanta::desktop
