#include "desktop/reading_strip.h"

#include <QPainter>
#include <algorithm>

#include "desktop/enlargement.h"
#include "desktop/statement_list_view.h"
#include "desktop/text_lines.h"
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
    const QString shown = m_isHint ? QStringLiteral("Choose a row to read it whole.") : chosen;
    if (shown == text()) return;
    m_page = 0;
    setText(shown);
}

QStringList ReadingStrip::lines() const {
    return linesOf(text(), font(), width() - 2 * (textMargin() + frame));
}

/// Where there are several, the last line tells of them.
int ReadingStrip::linesPerPage(int lines) const {
    const int fitting = (height() - 2 * textMargin()) / fontMetrics().lineSpacing();
    return std::max(1, lines > fitting ? fitting - 1 : lines);
}

int ReadingStrip::pages() const {
    const auto count = static_cast<int>(lines().size()), each = linesPerPage(count);
    return (count + each - 1) / each;
}

QStringList ReadingStrip::page() const {
    const QStringList all = lines();
    const qsizetype each = linesPerPage(static_cast<int>(all.size()));
    return all.mid(std::min(m_page, pages() - 1) * each, each);
}

bool ReadingStrip::turn(int pages) {
    const int last = this->pages() - 1;
    m_page = std::clamp(std::min(m_page, last) + pages, 0, last);
    update();
    return last > 0;
}

QString ReadingStrip::footer() const {
    const int last = pages();
    if (last == 1) return {};
    const QString words = QStringLiteral("Page %1 of %2. The Left and Right keys turn the pages.");
    return words.arg(std::min(m_page + 1, last)).arg(last);
}

void ReadingStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(theme::sideGround);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), enlarged(3),
                            enlarged(3));
    const int side = textMargin() + frame;
    const QRect room = rect().adjusted(side, textMargin(), -side, -textMargin());
    const QColor quiet = palette().color(QPalette::PlaceholderText);
    painter.setPen(m_isHint ? quiet : palette().color(QPalette::WindowText));
    painter.drawText(room, Qt::AlignLeft | Qt::AlignTop, page().join(u'\n'));
    painter.setPen(quiet);
    const QString shown = fontMetrics().elidedText(footer(), Qt::ElideRight, room.width());
    painter.drawText(room, Qt::AlignLeft | Qt::AlignBottom, shown);
}

}  // namespace orvanta::desktop
