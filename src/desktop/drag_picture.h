#pragma once

#include <QStringList>
#include <QWidget>

#include "view/statement_list.h"

namespace orvanta::desktop {

/// What hangs at the pointer during a drag: the card of the statement that a drop would act on and,
/// where a drop would do something, what. Qt's own picture of a drag can't change on its way.
class DragPicture : public QWidget {
public:
    /// `window`: within which the picture stays.
    explicit DragPicture(QWidget& window);

    void carry(const Row& row);
    const std::string& carried() const { return m_carried; }
    /// One line each; none where a drop would do nothing.
    void promise(const QStringList& lines);
    const QStringList& promised() const { return m_lines; }
    /// A point of the window.
    void moveTo(const QPoint& pointer);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void fit();

    std::string m_carried;
    QPixmap m_card;
    QStringList m_lines;
    QPoint m_pointer;
};

}  // namespace orvanta::desktop
