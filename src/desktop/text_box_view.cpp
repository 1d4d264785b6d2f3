#include "desktop/text_box_view.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QValidator>
#include <cassert>
#include <utility>

#include "desktop/conversions.h"
#include "view/text_entry.h"

namespace orvanta::desktop {

namespace {

std::string singleLine(const QString& text) { return singleLineFrom(text.toStdString()); }

}  // namespace

/// Sees every change of the box, whichever way it came about, before it shows.
class TextBoxView::Entry : public QValidator {
public:
    explicit Entry(TextBoxView& view) : QValidator(&view), m_view(view) {}

    State validate(QString& text, int& cursor) const override {
        if (m_view.m_showing || m_view.isLeftAlone(text)) return Acceptable;
        const std::string ahead = singleLine(text.left(cursor));
        const TextBox& model = m_view.m_model;
        const EnteredText entered = withinLimit(
            model.text(), {ahead + singleLine(text.mid(cursor)), ahead.size()}, model.maxLength());
        text = fromCp1252(entered.text);
        cursor = static_cast<int>(entered.cursor);
        return Acceptable;
    }

private:
    TextBoxView& m_view;
};

TextBoxView::TextBoxView(TextBox& model, Typed typed, Content content, QWidget* parent)
    : QLineEdit(parent), m_model(model), m_typed(std::move(typed)), m_content(content) {
    assert(m_typed);
    setMaxLength(1'000'000);
    setValidator(new Entry(*this));
    // Not textEdited: an assistive program sets a text without typing it.
    connect(this, &QLineEdit::textChanged, [this](const QString& text) {
        if (!m_showing) m_model.setText(isLeftAlone(text) ? toPath(text) : toCp1252(text));
    });
    model.changed.subscribe([this] { showModel(); });
    showModel();
}

void TextBoxView::showModel() {
    const std::string& held = m_model.text();
    const QString text = m_content == Content::Path ? fromPath(held) : fromCp1252(held);
    if (text == this->text()) return;
    m_showing = true;
    setText(text);
    m_showing = false;
}

bool TextBoxView::isLeftAlone(const QString& text) const {
    return m_content == Content::Path && !fitsCp1252(text);
}

/// What is left of typed characters once the program has been asked about each.
QString TextBoxView::accepted(const std::string& typed) {
    std::string left;
    for (const char character : typed)
        if (m_typed(character)) left += character;
    return fromCp1252(left);
}

/// True for keys that the box has no use for and the window has.
bool TextBoxView::isTheWindows(const QKeyEvent& event) const {
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::ControlModifier) return false;
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return true;
        case Qt::Key_Z:
            return !isUndoAvailable();
        case Qt::Key_Y:
            return !isRedoAvailable();
        default:
            return false;
    }
}

void TextBoxView::keyPressEvent(QKeyEvent* event) {
    if (isTheWindows(*event)) return event->ignore();
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        m_typed(enterKey);
        event->accept();
        return;
    }
    if (isLeftAlone(event->text())) return QLineEdit::keyPressEvent(event);
    const std::string typed = toCp1252(event->text());
    const bool isCommand = event->modifiers() & (Qt::ControlModifier | Qt::MetaModifier) &&
                           !(event->modifiers() & Qt::AltModifier);
    if (typed.empty() || !isPrintable(typed.front()) || isCommand || isReadOnly())
        return QLineEdit::keyPressEvent(event);
    event->accept();
    const QString left = accepted(typed);
    if (!left.isEmpty()) insert(left);
}

void TextBoxView::inputMethodEvent(QInputMethodEvent* event) {
    if (!event->commitString().isEmpty() && !isLeftAlone(event->commitString()))
        event->setCommitString(accepted(singleLine(event->commitString())),
                               event->replacementStart(), event->replacementLength());
    QLineEdit::inputMethodEvent(event);
}

}  // namespace orvanta::desktop
