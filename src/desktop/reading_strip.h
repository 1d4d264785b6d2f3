#pragma once

#include <QLabel>
#include <vector>

namespace orvanta::desktop {

class StatementListView;

/// The chosen statement whole, if need be page by page, at the foot of a screen's lists, where
/// their rows cut some. All lists of a screen share one, which is as wide as they are together, and
/// keep their rows above it. It shows the choice of the list that has the keyboard, else the choice
/// that changed last.
class ReadingStrip : public QLabel {
public:
    /// The strip of the screen that a list lies on; the list joins those that share it.
    static ReadingStrip& joinedBy(StatementListView& list);

    /// Takes the room that any statement of the lists needs, and no more; a text may differ.
    void arrange();
    /// Shows what is chosen in a list from now on, or that nothing is, unless another one has the
    /// keyboard and a choice.
    void tell(const StatementListView& list);
    void leave(StatementListView& list);

    /// A statement that does not fit is read page by page.
    int pages() const;
    /// The lines of the page that shows.
    QStringList page() const;
    /// Turns so many pages on, or back below 0, as far as there are any. False if there is but one.
    bool turn(int pages);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    explicit ReadingStrip(QWidget* screen);

    QRect placeOfLists() const;
    int neededHeight(const QRect& lists) const;
    void showChoice();
    QStringList lines() const;
    int linesPerPage(int lines) const;
    QString footer() const;

    std::vector<StatementListView*> m_lists;
    const StatementListView* m_told = nullptr;  // the list whose choice shows
    bool m_isHint = true;                       // nothing is chosen
    int m_page = 0;                             // from 0; may be beyond the last
};

}  // namespace orvanta::desktop
