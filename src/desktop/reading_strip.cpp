#include "desktop/reading_strip.h"

#include <QPainter>
#include <QTextOption>
#include <algorithm>

#include "desktop/enlargement.h"
#include "desktop/statement_list_view.h"
#include "desktop/theme.h"

namespace orvanta::desktop {

namespace {

constexpr int frame = 1;

int textMargin() { return enlarged(8); }

}  // namespace

ReadingStrip::ReadingStrip(QWidget* screen) : QLabel(screen) {
    setObjectName(QStringLiteral("readingStrip"));
    hide();
    setMargin(textMargin());
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

ReadingStrip& ReadingStrip::joinedBy(StatementListView& list) {
    QWidget* screen = list.parentWidget();
    ReadingStrip* strip = nullptr;
    for (QObject* child : screen->children())
        if (auto* found = dynamic_cast<ReadingStrip*>(child)) strip = found;
    if (!strip) strip = new ReadingStrip(screen);
    strip->m_lists.push_back(&list);
    return *strip;
}

void ReadingStrip::leave(StatementListView& list) {
    std::erase(m_lists, &list);
    if (m_told == &list) m_told = nullptr;
}

QRect ReadingStrip::placeOfLists() const {
    QRect all;
    for (const StatementListView* list : m_lists) all = all.united(list->geometry());
    return all;
}

int ReadingStrip::neededHeight(const QRect& lists) const {
    constexpr double mostOfTheLists = 0.45;
    int lines = 0;
    for (const StatementListView* list : m_lists)
        lines = std::max(lines, list->linesToRead(lists.width() - 2 * (textMargin() + frame)));
    if (lines == 0) return 0;
    return std::min(lines * fontMetrics().lineSpacing() + 2 * textMargin(),
                    static_cast<int>(lists.height() * mostOfTheLists));
}

void ReadingStrip::arrange() {
    if (font() != m_lists.front()->font()) setFont(m_lists.front()->font());
    const QRect lists = placeOfLists();
    const int height = neededHeight(lists);
    for (StatementListView* list : m_lists) list->keepFree(height);
    setVisible(height > 0);
    setGeometry(lists.adjusted(0, lists.height() - height, 0, 0));
    raise();
    showChoice();
}

void ReadingStrip::tell(const StatementListView& list) {
    const auto comesFirst = [&](const StatementListView* other) {
        return other != &list && other->hasFocus() && !other->chosenText().isEmpty();
    };
    if (std::ranges::any_of(m_lists, comesFirst)) return;
    m_told = &list;
    showChoice();
}

void ReadingStrip::showChoice() {
    const QString chosen = m_told ? m_told->chosenText() : QString();
    m_isHint = chosen.isEmpty();
    setText(m_isHint ? QStringLiteral("Choose a row to read it whole.") : chosen);
}

void ReadingStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(theme::sideGround);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), enlarged(3),
                            enlarged(3));
    painter.setPen(palette().color(m_isHint ? QPalette::PlaceholderText : QPalette::WindowText));
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    const int side = textMargin() + frame;
    painter.drawText(QRectF(rect()).adjusted(side, textMargin(), -side, 0), text(), option);
}

}  // namespace orvanta::desktop
