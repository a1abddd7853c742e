#include "controls/TabStrip.h"
#include "controls/rangeControls.h"
#include "qt/bindings/ControlBinding.h"
#include "qt/bindings/bindings.h"
#include "qt/convert.h"
#include "qt/widgets/ColourButton.h"
#include "qt/widgets/UpDownButtons.h"

#include <QScrollBar>
#include <QTabBar>

namespace qncal::host {

namespace {

class UpDownBinding : public BindingOf<UpDown, UpDownButtons> {
public:
    UpDownBinding(UpDown& control, UpDownButtons& widget) : BindingOf(control, widget)
    {
        connect(&widget, &UpDownButtons::up, this, [this] { fromUser([this] { model().up(); }); });
        connect(&widget, &UpDownButtons::down, this, [this] { fromUser([this] { model().down(); }); });
        start();
    }

protected:
    void show() override {}
};

class ScrollBarBinding : public BindingOf<ScrollBar, QScrollBar> {
public:
    ScrollBarBinding(ScrollBar& control, QScrollBar& widget) : BindingOf(control, widget)
    {
        connect(&widget, &QScrollBar::valueChanged, this, [this](int value) {
            fromUser([=, this] {
                model().value(value);
                if (this->control() && view().isSliderDown() && model().Scroll)
                    model().Scroll();
            });
        });
        start();
    }

protected:
    void show() override
    {
        view().setRange(model().minimum(), model().maximum());
        view().setSingleStep(model().smallChange());
        view().setPageStep(model().largeChange());
        view().setValue(model().value());
    }
};

class TabStripBinding : public BindingOf<TabStrip, QTabBar> {
public:
    TabStripBinding(TabStrip& control, QTabBar& widget) : BindingOf(control, widget)
    {
        connect(&widget, &QTabBar::currentChanged, this, [this](int tab) {
            fromUser([=, this] {
                if (tab >= 0)
                    model().selectedTab(tab);
            });
        });
        start();
    }

protected:
    void show() override
    {
        const auto& tabs = model().tabs();
        for (int tab = 0; tab < static_cast<int>(tabs.size()); ++tab) {
            const QString caption = toQt(tabs[static_cast<std::size_t>(tab)]);
            if (tab == view().count())
                view().addTab(caption);
            else if (view().tabText(tab) != caption)
                view().setTabText(tab, caption);
            view().setTabVisible(tab, model().isTabVisible(tab));
        }
        view().setCurrentIndex(model().selectedTab());
    }
};

class ColourPickerBinding : public BindingOf<ColourPicker, ColourButton> {
public:
    ColourPickerBinding(ColourPicker& control, ColourButton& widget) : BindingOf(control, widget)
    {
        connect(&widget, &ColourButton::picked, this,
                [this](const QColor& colour) { fromUser([&, this] { model().colour(fromQtColour(colour)); }); });
        start();
    }

protected:
    void show() override { view().setColour(toQtColour(model().colour())); }
};

} // namespace

void bind(UpDown& control, UpDownButtons& widget) { new UpDownBinding(control, widget); }

void bind(ScrollBar& control, QScrollBar& widget) { new ScrollBarBinding(control, widget); }

void bind(TabStrip& control, QTabBar& widget) { new TabStripBinding(control, widget); }

void bind(ColourPicker& control, ColourButton& widget) { new ColourPickerBinding(control, widget); }

} // namespace qncal::host
