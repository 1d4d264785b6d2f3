#include "desktop/dialogs.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QEventLoop>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

#include "core/failures.h"
#include "desktop/art.h"
#include "desktop/clicks.h"
#include "desktop/enlargement.h"
#include "desktop/label_view.h"
#include "desktop/mirrors.h"
#include "desktop/theme.h"
#include "view/text_entry.h"

namespace orvanta::desktop {

namespace {

/// Plain paper, or a picture behind the controls and a light foot behind the buttons.
class DialogGround : public ControlArea {
public:
    DialogGround(const PixelGrid& pixelGrid, QWidget* parent) : ControlArea(pixelGrid, parent) {}

    void setPicture(const QString& name, const Control& footButton) {
        m_picture = name;
        m_footButton = &footButton;
    }

protected:
    void paintEvent(QPaintEvent*) override {
        const int aboveButton = enlarged(13);
        QPainter painter(this);
        painter.fillRect(rect(), m_footButton ? theme::sideGround : theme::paper);
        if (!m_footButton) return;
        const int foot = pixelGrid().pixels(m_footButton->bounds().top) - aboveButton;
        drawPicture(painter, {0, 0, width(), foot}, m_picture);
    }

private:
    QString m_picture;
    const Control* m_footButton = nullptr;
};

template <class Act>
void handle(Program& program, Act act) {
    endingEventOnFailure(program.platform.lifetime, act);
}

void putBackground(ControlArea& area, const Control& footButton) {
    static_cast<DialogGround&>(area).setPicture(QStringLiteral("dialog_background"), footButton);
}

LabelView* putLabel(Label& model, ControlArea& area, QPalette::ColorRole ink) {
    auto* view = new LabelView(model, area.pixelGrid(), &area);
    view->setForegroundRole(ink);
    mirrorControl(model, *view, area);
    return view;
}

/// The picture of the About box: it keeps its proportions above a ground of its own colour.
class PictureView : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent*) override {
        constexpr QSize drawn(200, 260);
        QPainter painter(this);
        painter.fillRect(rect(), theme::deepBlue);
        QRect place(QPoint(), drawn.scaled(size(), Qt::KeepAspectRatio));
        place.moveBottomLeft(rect().bottomLeft());
        drawPicture(painter, place, QStringLiteral("about"));
    }
};

}  // namespace

FormDialog::FormDialog(Program& program, QWidget* owner)
    : QDialog(owner),
      m_program(program),
      m_area(new DialogGround(PixelGrid(program.platform.screen), this)) {
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setModal(true);
}

void FormDialog::setUpWindow(const std::string& caption, Twips width, Twips height) {
    setWindowTitle(fromCp1252(caption));
    m_area->setDesignSize(width, height);
    m_area->resize(m_area->designSize());
    setFixedSize(m_area->designSize());
}

void FormDialog::closeEvent(QCloseEvent* event) {
    closeForm();
    event->accept();
}

EditDialog::EditDialog(Program& program, FrmEdit& form, QWidget* owner)
    : FormDialog(program, owner), m_form(form) {
    setObjectName(QStringLiteral("frmEdit"));
    putBackground(*m_area, form.btnOk.image);
    putLabel(form.Label1, *m_area, QPalette::HighlightedText);
    const auto typed = [this](char character) {
        if (character == enterKey) handle(m_program, [&] { commitEdit(m_program, m_form); });
        return true;
    };
    TextBoxView* box = makeTextBox(form.txtEdit, *m_area, typed);
    const auto pressed = [this](SkinnedButton& button) {
        return [this, &button] { pressEditButton(m_program, button); };
    };
    makeSkinnedButton(form.btnCancel, *m_area,
                      {pressed(form.btnCancel), [this] { releaseEditCancel(m_program, m_form); }});
    makeSkinnedButton(form.btnOk, *m_area,
                      {pressed(form.btnOk),
                       [this] { handle(m_program, [&] { releaseEditOk(m_program, m_form); }); }});
    form.closed.subscribe([this] { done(Accepted); });
    setUpWindow(form.caption, form.width, form.height);
    box->setFocus();
    // Showing the dialog selects the whole text; a statement is to be reworded, not replaced.
    QTimer::singleShot(0, box, [box] { box->end(false); });
}

void EditDialog::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) FormDialog::keyPressEvent(event);  // it does not cancel
}

ReportDialog::ReportDialog(Program& program, FrmReportType& form, QWidget* owner)
    : FormDialog(program, owner), m_form(form) {
    setObjectName(QStringLiteral("frmReportType"));
    putBackground(*m_area, form.OKButton);
    LabelView* format = putLabel(form.Label1, *m_area, QPalette::HighlightedText);
    LabelView* file = putLabel(form.Label2, *m_area, QPalette::HighlightedText);
    putLabel(form.lblGenerating, *m_area, QPalette::HighlightedText);
    format->setBuddy(makeComboBox(form.cboFormat, *m_area));
    const auto accept = [this] { handle(m_program, [&] { acceptReport(m_program, m_form); }); };
    TextBoxView* box = makeTextBox(
        form.txtEdit, *m_area,
        [accept](char character) {
            if (character == enterKey) accept();
            return true;
        },
        TextBoxView::Content::Path);
    file->setBuddy(box);
    makePushButton(form.cmdBrowse, *m_area,
                   [this] { handle(m_program, [&] { browseForAnalyzeFile(m_program, m_form); }); });
    makePushButton(form.CancelButton, *m_area, [this] { m_form.close(); });  // left of OK
    makePushButton(form.OKButton, *m_area, accept)->setDefault(true);
    const auto showEnabled = [this] { m_area->setEnabled(m_form.enabled); };  // the close box stays
    form.enabledChanged.subscribe(showEnabled);
    showEnabled();
    form.closed.subscribe([this] { done(Accepted); });
    setUpWindow(form.caption, form.width, form.height);
    box->setFocus();
}

AboutDialog::AboutDialog(Program& program, FrmAbout& form, QWidget* owner)
    : FormDialog(program, owner), m_form(form) {
    setObjectName(QStringLiteral("frmAbout"));
    mirrorControl(form.Image1, *new PictureView(m_area), *m_area);
    putLabel(form.lblTitle, *m_area, QPalette::Link);
    putLabel(form.lblR, *m_area, QPalette::Link);
    for (Label* label : {&form.lblVersion, &form.Label1})
        putLabel(*label, *m_area, QPalette::WindowText);
    putLabel(form.lblDisclaimer, *m_area, QPalette::PlaceholderText);
    auto* link =
        new LinkView(form.lblSupport, LinkView::Ground::Plain, m_area->pixelGrid(), m_area);
    whenClicked(*link, [this] { openSupportPage(m_program); });
    mirrorControl(form.lblSupport, *link, *m_area);
    QPushButton* ok = makePushButton(form.cmdOK, *m_area, [this] { m_form.close(); });
    ok->setDefault(true);
    form.closed.subscribe([this] { done(Accepted); });
    setUpWindow(form.caption, form.width, form.height);
    ok->setFocus();
}

SplashDialog::SplashDialog(Program& program, const FrmSplash& form)
    : QDialog(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint) {
    setObjectName(QStringLiteral("frmSplash"));
    const PixelGrid pixelGrid(program.platform.screen);
    setFixedSize(pixelGrid.pixels(form.width), pixelGrid.pixels(form.height));
    setWindowTitle(fromCp1252(form.caption));
    move(screen()->availableGeometry().center() - rect().center());
    QTimer::singleShot(splashMilliseconds, this, &QDialog::accept);
}

/// Showing a splash lets events through, and a key among them ends it: QDialog would then wait for
/// an end that has been.
int SplashDialog::exec() {
    QEventLoop untilItEnds;
    connect(this, &QDialog::finished, &untilItEnds, &QEventLoop::quit);
    setModal(true);
    show();
    if (isVisible()) untilItEnds.exec();
    return result();
}

void SplashDialog::keyPressEvent(QKeyEvent*) { accept(); }

void SplashDialog::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawPicture(painter, rect(), QStringLiteral("splash"));
    if (m_whenSeen) QTimer::singleShot(0, this, std::exchange(m_whenSeen, nullptr));
}

}  // namespace orvanta::desktop
