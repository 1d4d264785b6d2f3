#pragma once

#include <QStringList>

#include "album.h"
#include "team.h"
#include "window_bench.h"

namespace orvanta::test {

/// A session with the real questions, whose screens an album takes.
class Session {
public:
    explicit Session(Album& album);

protected:
    void open();
    void take(const char* name) { m_album.take(m_bench.window(), QLatin1String(name)); }
    void takeDialog(QWidget& dialog, const char* name);
    /// Of a folder with these files.
    void takeFileDialog(const QStringList& files);
    /// The menu of a list with one of its rows chosen.
    void takeMenu(const std::string& list, int row);
    /// A strength that is dragged over a row of the threats.
    void takeDrag(int strength, int threat);

    /// Presses Next in the Brainstorm wizard until its panel of a kind shows.
    void goTo(const std::string& panel);
    void openAnalysis();
    void addSourcesOf(Team team);

    Album& m_album;
    WindowBench<> m_bench;
};

}  // namespace orvanta::test
