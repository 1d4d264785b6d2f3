#include "album.h"

#include <QPainter>
#include <QtTest>

namespace orvanta::test {

void Album::take(QWidget& window, const QString& name) {
    QTest::qWait(100);  // the file dialog reads its folder on another thread
    keep(window.grab(), name);
}

void Album::takeWith(QWidget& window, QWidget& inFront, const QString& name) {
    QCoreApplication::processEvents();
    QPixmap picture = window.grab();
    QPainter painter(&picture);
    painter.drawPixmap(window.mapFromGlobal(inFront.mapToGlobal(QPoint())), inFront.grab());
    painter.end();
    keep(picture, name);
}

void Album::keep(const QPixmap& picture, const QString& name) {
    const QString file = QStringLiteral("%1/%2-%3.png")
                             .arg(m_folder)
                             .arg(++m_count, 2, 10, QLatin1Char('0'))
                             .arg(name);
    m_whole = picture.save(file, "PNG") && m_whole;
}

}  // namespace orvanta::test
