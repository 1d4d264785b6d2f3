#pragma once

#include <QLabel>

#include "app/whereabouts.h"
#include "desktop/conversions.h"

namespace orvanta::desktop {

/// A quiet line at the foot of a module: the step of the wizard, and how many statements stand
/// in each of its lists.
class WhereaboutsView : public QLabel, private StatementListObserver {
public:
    /// `model`: tells the place; the view switches it on and off.
    WhereaboutsView(Program& program, Label& model, const PixelGrid& pixelGrid, QWidget* parent);

    /// Looks again once what is going on is over, however often it is called until then.
    void mayDiffer();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void rowInserted(int) override { mayDiffer(); }
    void rowRemoved(int) override { mayDiffer(); }
    void cleared() override { mayDiffer(); }
    void look();
    int drawCount(QPainter& painter, int right, StatementKind kind) const;

    const Program& m_program;
    Label& m_model;
    Whereabouts m_shown;
    bool m_lookPending = false;
};

}  // namespace orvanta::desktop
