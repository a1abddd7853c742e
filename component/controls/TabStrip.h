#pragma once

#include "controls/Control.h"

#include <string>
#include <vector>

namespace qncal {

/// Tab pages by caption, numbered from 0. A change of the page raises Click with the page left. Controls that stand on
/// a page (`container`) are shown while it is the selected one.
class TabStrip : public Control {
public:
    using Control::Control;
    const char* kind() const override { return "TabStrip"; }
    std::string valueText() const override;

    const std::vector<std::string>& tabs() const { return tabs_; }
    void addTab(std::string caption);
    bool isTabVisible(std::int32_t tab) const;
    void tabVisible(std::int32_t tab, bool visible);
    std::int32_t selectedTab() const { return selected_; }
    /// A tab outside of the strip is ignored.
    void selectedTab(std::int32_t tab);

    std::function<void(std::int32_t previousTab)> Click;

protected:
    bool isInFront(std::int32_t page) const override { return page == selected_ && isTabVisible(page); }

private:
    std::vector<std::string> tabs_;
    std::vector<bool> visible_;
    std::int32_t selected_ = 0;
};

} // namespace qncal
