#include "qt/icons.h"

#include <QCoreApplication>

#include <array>

// The resources of a static library are registered by whoever uses them.
static void registerIcons() { Q_INIT_RESOURCE(icons); }

namespace qncal::host {

namespace {

constexpr std::array<const char*, statusIconCount> names{
    "Completed", "Cancelled", "Postponed", "Out of office", "Important", "Telephone",   "E-mail",  "Meeting", "Money",
    "Document",  "Tax form",  "Calendar",  "Clock",         "Bell",      "Star",        "Flag",    "Home",    "Car",
    "Aeroplane", "Coffee",    "Person",    "People",        "Question",  "Information", "Warning", "Locked",  "Key",
    "Heart",     "Pinned",    "Link",      "Chart",         "Briefcase", "Building",    "Printer", "Fax",     "Letter",
    "Signature", "Folder",    "Search",    "Edit",          "Discarded", "In progress"};

bool isNumber(int number) { return number >= 1 && number <= statusIconCount; }

} // namespace

QIcon statusIcon(int number)
{
    // An icon keeps what was drawn of it: a window with all of them is opened again and again.
    static std::array<QIcon, statusIconCount> icons;
    if (!isNumber(number))
        return {};
    if (icons.front().isNull()) {
        registerIcons();
        for (int each = 1; each <= statusIconCount; ++each)
            icons[static_cast<std::size_t>(each - 1)] =
                QIcon(QStringLiteral(":/qncal/icons/status%1.svg").arg(each, 2, 10, QChar('0')));
        // Pictures must be gone before the application is.
        qAddPostRoutine([] { icons = {}; });
    }
    return icons[static_cast<std::size_t>(number - 1)];
}

QString statusIconName(int number)
{
    return isNumber(number) ? QString::fromLatin1(names[static_cast<std::size_t>(number - 1)]) : QString();
}

} // namespace qncal::host
