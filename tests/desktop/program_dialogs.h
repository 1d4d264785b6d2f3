#pragma once

#include <initializer_list>

#include "desktop/dialogs.h"

namespace orvanta::test {

/// The dialogs of a program that have controls of their own.
struct ProgramDialogs {
    explicit ProgramDialogs(Program& program)
        : editDialog(program, edit, nullptr),
          reportDialog(program, report, nullptr),
          aboutDialog(program, about, nullptr) {}

    /// Shows each for as long as it is visited.
    template <class Visit>
    void showEach(Visit visit) {
        for (QDialog* dialog :
             std::initializer_list<QDialog*>{&editDialog, &reportDialog, &aboutDialog}) {
            dialog->show();
            visit(*dialog);
            dialog->hide();
        }
    }

    FrmEdit edit;
    FrmReportType report;
    FrmAbout about;
    desktop::EditDialog editDialog;
    desktop::ReportDialog reportDialog;
    desktop::AboutDialog aboutDialog;
};

}  // namespace orvanta::test
