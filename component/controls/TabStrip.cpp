#include "controls/TabStrip.h"

namespace qncal {

std::string TabStrip::valueText() const
{
    return tabs_.empty() ? std::string() : tabs_[static_cast<std::size_t>(selected_)];
}

void TabStrip::addTab(std::string caption)
{
    tabs_.push_back(std::move(caption));
    visible_.push_back(true);
    updated.raise();
}

bool TabStrip::isTabVisible(std::int32_t tab) const
{
    return tab >= 0 && static_cast<std::size_t>(tab) < visible_.size() && visible_[static_cast<std::size_t>(tab)];
}

void TabStrip::tabVisible(std::int32_t tab, bool visible)
{
    if (tab < 0 || static_cast<std::size_t>(tab) >= visible_.size()
        || visible_[static_cast<std::size_t>(tab)] == visible)
        return;
    visible_[static_cast<std::size_t>(tab)] = visible;
    updated.raise();
    updateContained();
}

void TabStrip::selectedTab(std::int32_t tab)
{
    if (tab < 0 || static_cast<std::size_t>(tab) >= tabs_.size())
        return;
    const std::int32_t previous = selected_;
    if (!store(selected_, tab))
        return;
    updateContained();
    if (Click)
        Click(previous);
}

} // namespace qncal
