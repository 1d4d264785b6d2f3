// Paints the screens and dialogs of the program into pictures, for the product's pages and for
// looking them over.
//   orvanta_screens FOLDER [usual | wordy | silent | crowd]
// The word says what the team is like. Of the usual one, which it is without a word, every screen
// and dialog is painted; of the others what looks different.

#include <QApplication>
#include <iostream>

#include "desktop/theme.h"
#include "team_session.h"
#include "usual_session.h"

int main(int argc, char** argv) {
    using namespace orvanta::test;
    QApplication application(argc, argv);
    const QStringList words = application.arguments();
    const auto team = teamNamed(words.size() > 2 ? words.at(2).toStdString() : "usual");
    if (words.size() < 2 || words.size() > 3 || !team) {
        std::cerr << "usage: orvanta_screens FOLDER [usual | wordy | silent | crowd]\n";
        return 2;
    }
    std::cout << "the desktop's windows are "
              << QApplication::palette().window().color().name().toStdString();
    QCoreApplication::setApplicationName(QStringLiteral("Orvanta"));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    orvanta::desktop::applyTheme(application);
    Album album(words.at(1));
    if (team == Team::Usual)
        takeUsualSession(album);
    else
        takeSessionOf(*team, album);
    std::cout << ", " << album.count() << " pictures in " << words.at(1).toStdString() << '\n';
    return album.isWhole() ? 0 : 1;
}
