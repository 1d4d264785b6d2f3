#pragma once

#include <QApplication>
#include <QFont>

#include "desktop/theme.h"

namespace orvanta::test {

/// The program on a desktop with letters of another size.
class Letters {
public:
    explicit Letters(double points) {
        QFont font = QApplication::font();
        font.setPointSizeF(points);
        QApplication::setFont(font);
        desktop::applyTheme(*qApp);
    }
    ~Letters() {
        QApplication::setFont(m_former);
        desktop::applyTheme(*qApp);
    }
    Letters(const Letters&) = delete;
    Letters& operator=(const Letters&) = delete;

private:
    QFont m_former = QApplication::font();
};

}  // namespace orvanta::test
