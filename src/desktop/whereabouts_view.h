#pragma once

#include <QLabel>

#include "app/rescued_saves.h"
#include "app/whereabouts.h"
#include "desktop/conversions.h"

namespace orvanta::desktop {

/// A line at the head of a module: the step of the wizard, a segment for each of its steps, and
/// how many statements stand in each of its lists. In their place it says, of a save that failed,
/// what is to be known.
class WhereaboutsView : public QLabel, private StatementListObserver {
public:
    /// `model`: tells the place; the view switches it on and off.
    WhereaboutsView(Program& program, Label& model, const PixelGrid& pixelGrid, QWidget* parent);

    /// The saves must outlive the view's use.
    void tellOf(RescuedSaves& saves);

    /// Looks again once what is going on is over, however often it is called until then.
    void mayDiffer();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void rowInserted(int) override { mayDiffer(); }
    void rowRemoved(int) override { mayDiffer(); }
    void cleared() override { mayDiffer(); }
    void look();
    void drawWhereabouts(QPainter& painter) const;
    void drawPlace(QPainter& painter, const QRect& room) const;
    int drawCount(QPainter& painter, const QRect& room, StatementKind kind) const;
    void drawSegments(QPainter& painter) const;

    const Program& m_program;
    Label& m_model;
    const RescuedSaves* m_saves = nullptr;
    Whereabouts m_shown;
    QString m_failure;  // shown instead, unless it is empty
    bool m_lookPending = false;
};

}  // namespace orvanta::desktop
