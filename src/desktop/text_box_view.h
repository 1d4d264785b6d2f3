#pragma once

#include <QLineEdit>
#include <functional>
#include <string>

#include "view/control.h"

namespace orvanta::desktop {

/// The window's side of a text box. What enters it, typed, pasted or composed, is at once what
/// the program can hold: other characters show as "?", line breaks as blanks.
class TextBoxView : public QLineEdit {
public:
    /// Asked for each character ahead of its entry, Enter as code 13; false refuses it.
    using Typed = std::function<bool(char)>;

    TextBoxView(TextBox& model, Typed typed, QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

private:
    bool isTheWindows(const QKeyEvent& event) const;
    class Entry;

    QString accepted(const std::string& typed);
    void showModel();

    TextBox& m_model;
    Typed m_typed;
    bool m_showing = false;
};

}  // namespace orvanta::desktop
