#pragma once

#include <QDialog>

#include "desktop/control_area.h"
#include "presentation/about_box.h"
#include "presentation/edit_dialog.h"
#include "presentation/splash.h"
#include "reports/report_dialog.h"

namespace orvanta::desktop {

// The dialogs, each the mirror of its form. A form must outlive its dialog's use; when it
// closes, its dialog goes.

/// A dialog of fixed size; its controls lie on one area.
class FormDialog : public QDialog {
public:
    FormDialog(Program& program, QWidget* owner);

protected:
    /// Fits the dialog to a form's size and gives it its title.
    void setUpWindow(const std::string& caption, Twips width, Twips height);
    void closeEvent(QCloseEvent* event) override;
    /// The close box was used.
    virtual void closeForm() = 0;
    void reject() override { closeForm(); }

    Program& m_program;
    ControlArea* m_area;
};

class EditDialog : public FormDialog {
public:
    EditDialog(Program& program, FrmEdit& form, QWidget* owner);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeForm() override { m_form.close(); }

private:
    FrmEdit& m_form;
};

class ReportDialog : public FormDialog {
public:
    ReportDialog(Program& program, FrmReportType& form, QWidget* owner);

    bool shows(const FrmReportType& form) const { return &form == &m_form; }

protected:
    void closeForm() override { m_form.close(); }

private:
    FrmReportType& m_form;
};

class AboutDialog : public FormDialog {
public:
    AboutDialog(Program& program, FrmAbout& form, QWidget* owner);

protected:
    void closeForm() override { m_form.close(); }

private:
    FrmAbout& m_form;
};

/// The picture at the start, without a frame. It closes when its timer fires, or at the first
/// key press.
class SplashDialog : public QDialog {
public:
    SplashDialog(Program& program, const FrmSplash& form);

    void whenSeen(std::function<void()> act) { m_whenSeen = std::move(act); }

    int exec() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    std::function<void()> m_whenSeen;
};

}  // namespace orvanta::desktop
