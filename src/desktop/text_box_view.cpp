#include "desktop/text_box_view.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QValidator>
#include <algorithm>
#include <utility>

#include "desktop/conversions.h"

namespace orvanta::desktop {

namespace {

constexpr char enterKey = 13;

bool isPrintable(QChar character) { return character >= u' ' && character != QChar(127); }

/// One character of the result for each of the code page: what it lacks is one "?".
QString clean(QString text) {
    text.replace(QLatin1String("\r\n"), QLatin1String(" "));
    text.replace(u'\r', u' ').replace(u'\n', u' ');
    return fromCp1252(toCp1252(text));
}

/// Cuts from what was just entered ahead of the cursor whatever exceeds the limit. A longer
/// text that was there before stays.
void cutEntered(QString& text, int& cursor, const QString& before, qsizetype limit) {
    const qsizetype excess = text.size() - limit;
    if (limit == 0 || excess <= 0 || text.size() <= before.size()) return;
    const qsizetype tail = text.size() - cursor;
    const qsizetype sharedMost =
        std::min<qsizetype>(cursor, std::max<qsizetype>(0, before.size() - tail));
    const auto [end, ignored] =
        std::mismatch(text.begin(), text.begin() + sharedMost, before.begin());
    const qsizetype entered = cursor - (end - text.begin());
    const qsizetype cut = std::min(entered, excess);
    text.remove(cursor - cut, cut);
    cursor -= static_cast<int>(cut);
}

}  // namespace

/// Sees every change of the box, whichever way it came about, before it shows.
class TextBoxView::Entry : public QValidator {
public:
    explicit Entry(TextBoxView& view) : QValidator(&view), m_view(view) {}

    State validate(QString& text, int& cursor) const override {
        if (m_view.m_showing) return Acceptable;
        const QString ahead = clean(text.left(cursor));
        text = ahead + clean(text.mid(cursor));
        cursor = static_cast<int>(ahead.size());
        cutEntered(text, cursor, fromCp1252(m_view.m_model.text()),
                   static_cast<qsizetype>(m_view.m_model.maxLength()));
        return Acceptable;
    }

private:
    TextBoxView& m_view;
};

TextBoxView::TextBoxView(TextBox& model, Typed typed, QWidget* parent)
    : QLineEdit(parent), m_model(model), m_typed(std::move(typed)) {
    setMaxLength(1'000'000);
    setValidator(new Entry(*this));
    // Not textEdited: an assistive program sets a text without typing it.
    connect(this, &QLineEdit::textChanged, [this](const QString& text) {
        if (!m_showing) m_model.setText(toCp1252(text));
    });
    model.changed.subscribe([this] { showModel(); });
    showModel();
}

void TextBoxView::showModel() {
    const QString text = fromCp1252(m_model.text());
    if (text == this->text()) return;
    m_showing = true;
    setText(text);
    m_showing = false;
}

/// What is left of typed characters once the program has been asked about each.
QString TextBoxView::accepted(const QString& typed) {
    QString left;
    for (const char character : toCp1252(typed))
        if (m_typed(character)) left += fromCp1252({&character, 1});
    return left;
}

void TextBoxView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        m_typed(enterKey);
        event->accept();
        return;
    }
    const QString typed = event->text();
    const bool isCommand = event->modifiers() & (Qt::ControlModifier | Qt::MetaModifier) &&
                           !(event->modifiers() & Qt::AltModifier);
    if (typed.isEmpty() || !isPrintable(typed.front()) || isCommand || isReadOnly())
        return QLineEdit::keyPressEvent(event);
    event->accept();
    const QString left = accepted(typed);
    if (!left.isEmpty()) insert(left);
}

void TextBoxView::inputMethodEvent(QInputMethodEvent* event) {
    if (!event->commitString().isEmpty())
        event->setCommitString(accepted(clean(event->commitString())), event->replacementStart(),
                               event->replacementLength());
    QLineEdit::inputMethodEvent(event);
}

}  // namespace orvanta::desktop
