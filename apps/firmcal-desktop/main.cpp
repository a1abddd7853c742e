#include "firmcal-desktop/Program.h"

#include <QApplication>

#include <iostream>

int main(int argumentCount, char** arguments)
{
    using namespace qncal::desktop;
    const auto asked = readCommandLine({arguments + 1, arguments + argumentCount}, std::cout, std::cerr);
    if (const int* status = std::get_if<int>(&asked))
        return *status;
    if (!hasDisplay()) {
        std::cerr
            << "firmcal-desktop: there is no display: none of DISPLAY, WAYLAND_DISPLAY and QT_QPA_PLATFORM is set; "
               "'firmcal' works without one\n";
        return 1;
    }
    // The arguments are this program's own, none of them the toolkit's.
    int own = 1;
    const QApplication application(own, arguments);
    return showDesktop(std::get<Options>(asked), std::cerr);
}
