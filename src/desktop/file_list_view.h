#pragma once

#include <QListWidget>
#include <functional>
#include <string>

#include "view/control.h"

namespace orvanta::desktop {

/// The list of source files. It takes files that are dropped on it, and tells what comes there as
/// long as it is empty.
class FileListView : public QListWidget {
public:
    /// Hears of each file that was dropped, one after the other.
    using Dropped = std::function<void(const std::string& path)>;
    /// The model must outlive the view's use.
    FileListView(ListBox& model, Dropped dropped, QWidget* parent);

    /// Shows the files of the model, and where they end if there is a new one.
    void showFiles();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void fitItems();
    void takeDropped(const QStringList& files);

    ListBox& m_model;
    Dropped m_dropped;
};

}  // namespace orvanta::desktop
