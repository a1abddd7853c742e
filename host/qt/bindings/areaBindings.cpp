#include "controls/captionedControls.h"
#include "qt/bindings/ControlBinding.h"
#include "qt/bindings/bindings.h"
#include "qt/convert.h"
#include "qt/icons.h"

#include <QAction>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QMouseEvent>

namespace qncal::host {

namespace {

class LabelBinding : public BindingOf<Label, QLabel> {
public:
    LabelBinding(Label& control, QLabel& widget) : BindingOf(control, widget)
    {
        widget.setTextFormat(Qt::PlainText);
        start();
    }

protected:
    void show() override
    {
        // Without a buddy to jump to, the label would show the mark of the access key.
        view().setText(view().buddy() ? toQt(model().caption()) : withoutAccessKey(model().caption()));
    }

    void showColours() override
    {
        ControlBinding::showColours();
        view().setAutoFillBackground(model().backColour().has_value());
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::MouseButtonRelease && control() && model().Click) {
            const auto& mouse = static_cast<QMouseEvent&>(*event);
            const QPointer<LabelBinding> alive(this);
            if (mouse.button() == Qt::LeftButton && view().rect().contains(mouse.position().toPoint()))
                model().Click();
            if (!alive)
                return true;
        }
        return ControlBinding::eventFilter(watched, event);
    }
};

class PanelBinding : public BindingOf<Panel, QWidget> {
public:
    PanelBinding(Panel& control, QWidget& widget) : BindingOf(control, widget)
    {
        widget.setAccessibleName(withoutAccessKey(control.caption()));
        start();
    }

protected:
    void show() override
    {
        if (auto* box = qobject_cast<QGroupBox*>(&view()))
            box->setTitle(toQt(model().caption()));
        if (std::exchange(shownTop_, model().top()) != model().top())
            view().move(view().x(), shownTop_);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Resize && control())
            model().height(view().height());
        return ControlBinding::eventFilter(watched, event);
    }

private:
    std::int32_t shownTop_ = 0;
};

class ImageBinding : public BindingOf<Image, QLabel> {
public:
    ImageBinding(Image& control, QLabel& widget) : BindingOf(control, widget) { start(); }

protected:
    void show() override
    {
        constexpr int edge = 24;
        const QIcon icon = statusIcon(model().picture());
        view().setPixmap(icon.isNull() ? QPixmap() : icon.pixmap(QSize(edge, edge), view().devicePixelRatioF()));
    }
};

/// A menu entry is no widget, so it has a binding of its own.
class MenuItemBinding : public QObject {
public:
    MenuItemBinding(MenuItem& item, QAction& action)
        : QObject(&action), item_(&item), action_(&action), updated_(item.updated, this, [this] { show(); }),
          destroyed_(item.destroyed, this, [this] {
              item_ = nullptr;
              updated_.forget();
              destroyed_.forget();
              action_->setEnabled(false);
          })
    {
        action.setObjectName(toQt(item.path()));
        connect(&action, &QAction::triggered, this, [this] {
            if (item_)
                item_->choose();
            // A checkable entry has turned round by itself; the model alone decides.
            if (item_)
                show();
        });
        show();
    }

private:
    void show()
    {
        action_->setText(toQt(item_->caption()));
        action_->setSeparator(item_->caption() == "-");
        action_->setEnabled(item_->isEnabled());
        action_->setVisible(item_->isVisible());
        action_->setToolTip(toQt(item_->toolTip()));
        action_->setCheckable(action_->isCheckable() || item_->isChecked());
        action_->setChecked(item_->isChecked());
    }

    MenuItem* item_;
    QAction* action_;
    Subscription updated_;
    Subscription destroyed_;
};

} // namespace

void bind(Label& control, QLabel& widget) { new LabelBinding(control, widget); }

void bind(Panel& control, QWidget& widget) { new PanelBinding(control, widget); }

void bind(Image& control, QLabel& widget) { new ImageBinding(control, widget); }

void bind(MenuItem& control, QAction& action) { new MenuItemBinding(control, action); }

} // namespace qncal::host
