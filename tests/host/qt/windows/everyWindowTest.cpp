#include "host/qt/QtDialogTest.h"
#include "items/frmSelectStartTime.h"
#include "qt/windows/ColourSchemesForm.h"
#include "settings/frmApptCustomFields.h"
#include "settings/frmApptStatusOptions.h"
#include "settings/frmChangeApptStatusFields.h"
#include "support/rowName.h"
#include "templates/frmTestComment.h"

#include <QAccessible>
#include <QLabel>
#include <QSet>

#include <algorithm>
#include <cmath>

// What every window owes to those who use it by keyboard, by ear or in the dark.

namespace qncal::test {
namespace {

struct WindowRow {
    const char* name;
    const char* formName;
    void (*open)();
};

const WindowRow windows[] = {
    {"StatusFields", "frmChangeApptStatusFields",
     [] { frmChangeApptStatusFields().Initialize(enumLocalCalendarAppointmentItem); }},
    {"CustomFields", "frmApptCustomFields", [] { frmApptCustomFields().Initialize(enumLocalCalendarTaskItem); }},
    {"StatusOptions", "frmApptStatusOptions",
     [] { frmApptStatusOptions().Initialize(enumLocalCalendarAppointmentItem, "Done", 1); }},
    {"SelectTime", "frmSelectStartTime",
     [] {
         frmSelectStartTime form;
         form.TimeSelected(Date::timeOf(9, 20));
         form.Initialize();
     }},
    {"TestComment", "frmTestComment", [] { frmTestComment().Initialize("Some words"); }},
    {"ColourSchemes", "frmColourSchemes", [] { host::ColourSchemesForm().open(enumLocalCalendarAppointmentItem); }},
};

class EveryWindowTest : public QtDialogTest, public testing::WithParamInterface<WindowRow> {
protected:
    EveryWindowTest()
    {
        addRow("CustomFields", {{"ApptStatusName1", "Done"}, {"TaskCustomName1", "Room"}});
        addRow("ColourSchemes", {{"SchemeName", "Amber"}, {"SchemeType", "0"}});
    }

    void show(const Script& script)
    {
        whenShown(GetParam().formName, script);
        GetParam().open();
    }
    /// What the Tab key should come to.
    static QList<QWidget*> tabStops(const QWidget& window)
    {
        QList<QWidget*> stops;
        for (QWidget* widget : window.findChildren<QWidget*>())
            if ((widget->focusPolicy() & Qt::TabFocus) && widget->isVisible() && widget->isEnabled()
                && !widget->focusProxy() && !partOfAnother(*widget))
                stops += widget;
        return stops;
    }
    /// The line inside of a combo box, the view inside of a list: the user sees them as one.
    static bool partOfAnother(const QWidget& widget) { return widget.objectName().startsWith("qt_"); }
    static std::string described(const QWidget& widget)
    {
        return std::string(widget.metaObject()->className()) + " " + widget.objectName().toStdString();
    }
    static QString spokenName(QWidget& widget)
    {
        QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&widget);
        return interface ? interface->text(QAccessible::Name) : QString();
    }
};

TEST_P(EveryWindowTest, WhatTakesTheFocusHasANameToBeSpoken)
{
    show([](host::FormWindow& window) {
        EXPECT_FALSE(window.windowTitle().isEmpty());
        for (QWidget* widget : tabStops(window))
            EXPECT_FALSE(spokenName(*widget).isEmpty()) << described(*widget);
    });
}

TEST_P(EveryWindowTest, TheTabKeyComesToEverything)
{
    show([](host::FormWindow& window) {
        const QList<QWidget*> stops = tabStops(window);
        QSet<QWidget*> reached;
        for (qsizetype key = 0; key <= 2 * stops.size(); ++key) {
            reached += QApplication::focusWidget();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        for (QWidget* widget : stops)
            EXPECT_TRUE(reached.contains(widget)) << described(*widget);
    });
}

TEST_P(EveryWindowTest, NoTwoWidgetsAnswerToOneAccessKey)
{
    show([](host::FormWindow& window) {
        QHash<QKeySequence, QString> taken;
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            const auto* label = qobject_cast<QLabel*>(widget);
            const QString text = label && !label->buddy() ? QString() : widget->property("text").toString();
            const QKeySequence key = QKeySequence::mnemonic(text);
            if (key.isEmpty() || !widget->isVisible())
                continue;
            EXPECT_FALSE(taken.contains(key)) << text.toStdString() << " and " << taken.value(key).toStdString();
            taken.insert(key, text);
        }
    });
}

/// How much lighter one colour is than another, from 1 to 21 (WCAG 2.1, relative luminance).
double contrast(const QColor& a, const QColor& b)
{
    const auto luminance = [](const QColor& colour) {
        const auto part = [](double value) {
            return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
    };
    const double first = luminance(a);
    const double second = luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

TEST_P(EveryWindowTest, ItsTextIsReadableInTheDark)
{
    const QPalette light = QApplication::palette();
    QPalette dark(QColor(53, 53, 53), QColor(42, 42, 42));
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    QApplication::setPalette(dark);
    show([](host::FormWindow& window) {
        picture(window, QString(GetParam().formName) + "-dark");
        for (const QWidget* widget : window.findChildren<QWidget*>()) {
            // The preview has the colours of the scheme.
            if (!widget->isVisible() || widget->objectName().startsWith("lblTitleBar")
                || widget->objectName() == "txtApptPreview")
                continue;
            const QPalette palette = widget->palette();
            EXPECT_GE(contrast(palette.color(widget->foregroundRole()), palette.color(widget->backgroundRole())), 3.0)
                << described(*widget);
        }
    });
    QApplication::setPalette(light);
}

INSTANTIATE_TEST_SUITE_P(Windows, EveryWindowTest, testing::ValuesIn(windows), rowName);

} // namespace
} // namespace qncal::test
