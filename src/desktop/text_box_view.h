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
    /// A path holds every character that the system's names do.
    enum class Content { Text, Path };
    /// Asked for each character ahead of its entry, Enter as code 13; false refuses it.
    using Typed = std::function<bool(char)>;

    TextBoxView(TextBox& model, Typed typed, Content content = Content::Text,
                QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

private:
    bool isTheWindows(const QKeyEvent& event) const;
    class Entry;

    QString accepted(const std::string& typed);
    /// True for what stands in a path and the code page does not hold.
    bool isLeftAlone(const QString& text) const;
    void showModel();

    TextBox& m_model;
    Typed m_typed;
    Content m_content;
    bool m_showing = false;
};

}  // namespace orvanta::desktop
