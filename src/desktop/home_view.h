#pragma once

#include "desktop/control_area.h"

namespace orvanta::desktop {

/// What stands in the place of the module panels while none is open: the mark of the product.
class HomeView : public QWidget {
public:
    /// Lies where the panel lies, behind it.
    HomeView(Panel& place, ControlArea& area);

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace orvanta::desktop
