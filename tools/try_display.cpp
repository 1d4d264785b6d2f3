// Ends with 0 where a window can be shown, else with a line on standard error and 1.

#include <QGuiApplication>

#include "desktop/display_needed.h"

int main(int argc, char** argv) {
    const orvanta::desktop::DisplayNeeded needed;
    const QGuiApplication application(argc, argv);
    return 0;
}
