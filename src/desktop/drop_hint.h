#pragma once

#include <QWidget>

namespace orvanta::desktop {

/// The second line of what hangs at the pointer during a drag: what a drop would do there.
class DropHint : public QWidget {
public:
    /// `window`: within which the hint stays.
    explicit DropHint(QWidget& window);

    /// Shows the caption under a card of this height whose hot spot is at a point of the window.
    void showAt(const QPoint& pointer, int cardHeight, const QString& caption);
    const QString& caption() const { return m_caption; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_caption;
};

}  // namespace orvanta::desktop
