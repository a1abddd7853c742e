#include "controls/rangeControls.h"
#include "headless/HeadlessDialogHost.h"
#include "host/qt/bindings/TestForm.h"
#include "qt/convert.h"
#include "qt/widgets/ColourButton.h"
#include "qt/widgets/DateTimeEdit.h"
#include "qt/widgets/UpDownButtons.h"

#include <gtest/gtest.h>

#include <QCalendarWidget>
#include <QCheckBox>
#include <QDateTimeEdit>
#include <QScrollBar>
#include <QToolButton>

namespace qncal::test {
namespace {

TEST(UpDownBindingTest, TheArrowsMoveTheModel)
{
    TestForm t;
    UpDown upDown{t.form, "updCount"};
    upDown.bounds(0, 5);
    upDown.UpClick = t.note("Up");
    upDown.DownClick = t.note("Down");
    auto& widget = t.show<host::UpDownButtons>(upDown);
    t.open();
    const auto arrows = widget.findChildren<QToolButton*>();
    ASSERT_EQ(arrows.size(), 2);
    QTest::mouseClick(arrows[0], Qt::LeftButton);
    QTest::mouseClick(arrows[0], Qt::LeftButton);
    QTest::mouseClick(arrows[1], Qt::LeftButton);
    EXPECT_EQ(upDown.value(), 1);
    EXPECT_EQ(t.events, (Events{"Up", "Up", "Down"}));
}

TEST(ScrollBarBindingTest, GoesBothWays)
{
    TestForm t;
    ScrollBar bar{t.form, "vScrollBar"};
    bar.bounds(0, 200);
    bar.largeChange(50);
    auto& widget = t.show<QScrollBar>(bar);
    bar.Change = t.note("Change");
    bar.Scroll = t.note("Scroll");
    t.open();
    bar.value(30);
    EXPECT_EQ(widget.value(), 30);
    widget.triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_EQ(bar.value(), 80);
    widget.setSliderDown(true);
    widget.setSliderPosition(90);
    EXPECT_EQ(bar.value(), 90);
    EXPECT_EQ(t.events, (Events{"Change", "Change", "Change", "Scroll"}));
}

struct DateTimePickerBindingTest : testing::Test {
    TestForm t;
    DateTimePicker picker{t.form, "dtpDate"};
};

TEST_F(DateTimePickerBindingTest, ShowsAndTakesADate)
{
    picker.value(Date::of(2026, 3, 31, 9, 30));
    picker.customFormat("yyyy-mm-dd");
    auto& widget = t.show<host::DateTimeEdit>(picker);
    picker.Change = t.note("Change");
    t.open();
    EXPECT_EQ(widget.edit().text(), "2026-03-31");
    EXPECT_TRUE(widget.check().isHidden());
    widget.edit().setFocus();
    widget.edit().setCurrentSection(QDateTimeEdit::YearSection);
    QTest::keyClick(&widget.edit(), Qt::Key_Up);
    EXPECT_EQ(picker.value(), Date::of(2027, 3, 31, 9, 30)) << "the time of day stays";
    EXPECT_TRUE(picker.hasFocus());
    picker.value(Date::of(2026, 1, 1));
    EXPECT_EQ(widget.edit().text(), "2026-01-01");
    EXPECT_EQ(t.events, (Events{"Change", "Change"}));
}

TEST_F(DateTimePickerBindingTest, ShowsATimeByItsPattern)
{
    picker.format(DateTimePicker::Format::time);
    picker.customFormat("h:nn AM/PM");
    picker.value(Date::timeOf(21, 5));
    auto& widget = t.show<host::DateTimeEdit>(picker);
    t.open();
    EXPECT_EQ(widget.edit().text(), "9:05 PM");
    widget.edit().setCurrentSection(QDateTimeEdit::HourSection);
    QTest::keyClick(&widget.edit(), Qt::Key_Up);
    EXPECT_EQ(picker.value(), Date::timeOf(22, 5));
}

TEST_F(DateTimePickerBindingTest, ATimeThatTheClockSkipsInSpringStays)
{
    const QByteArray zone = qgetenv("TZ");
    qputenv("TZ", "America/Toronto");
    picker.customFormat("yyyy-mm-dd hh:nn");
    picker.value(Date::of(2026, 3, 8, 2, 30));
    const auto& widget = t.show<host::DateTimeEdit>(picker);
    EXPECT_EQ(widget.edit().text(), "2026-03-08 02:30");
    EXPECT_EQ(picker.value(), Date::of(2026, 3, 8, 2, 30));
    zone.isNull() ? qunsetenv("TZ") : qputenv("TZ", zone);
}

TEST_F(DateTimePickerBindingTest, TheCheckBoxTakesTheValueAway)
{
    picker.checkBox(true);
    picker.value(Date::of(2026, 3, 31));
    auto& widget = t.show<host::DateTimeEdit>(picker);
    t.open();
    EXPECT_TRUE(widget.check().isChecked());
    QTest::keyClick(&widget.check(), Qt::Key_Space);
    EXPECT_FALSE(picker.hasValue());
    EXPECT_FALSE(widget.edit().isEnabled());
    QTest::keyClick(&widget.check(), Qt::Key_Space);
    EXPECT_TRUE(picker.hasValue());
    EXPECT_EQ(picker.value(), Date::of(2026, 3, 31));
}

TEST_F(DateTimePickerBindingTest, ClosingTheCalendarIsTold)
{
    picker.value(Date::of(2026, 3, 31));
    picker.CloseUp = t.note("CloseUp");
    auto& widget = t.show<host::DateTimeEdit>(picker);
    t.open();
    QWidget* calendar = openedCalendar(widget);
    ASSERT_TRUE(calendar);
    EXPECT_TRUE(t.events.empty());
    QTest::keyClick(calendar, Qt::Key_Escape);
    EXPECT_EQ(t.events, Events{"CloseUp"});
}

struct PatternCase {
    const char* name;
    const char* pattern;
    const char* qt;
};
void PrintTo(const PatternCase& row, std::ostream* out) { *out << row.pattern; }

class DatePatternTest : public testing::TestWithParam<PatternCase> {};

TEST_P(DatePatternTest, BecomesThePatternOfQt)
{
    EXPECT_EQ(host::toQtDatePattern(GetParam().pattern).toStdString(), GetParam().qt);
}

INSTANTIATE_TEST_SUITE_P(Patterns, DatePatternTest,
                         testing::Values(PatternCase{"TwelveHours", "h:Nn am/pm", "h:mm ap"},
                                         PatternCase{"CapitalSuffix", "hh:nn AM/PM", "hh:mm AP"},
                                         PatternCase{"TwentyFourHours", "hh:nn:ss", "HH:mm:ss"},
                                         PatternCase{"MinutesAfterHours", "hh:mm", "HH:mm"},
                                         PatternCase{"MonthsAfterHoursAndMinutes", "hh:nn d/m/yy", "HH:mm d/M/yy"},
                                         PatternCase{"LongDate", "dddd, mmmm d, yyyy", "dddd, MMMM d, yyyy"},
                                         PatternCase{"Empty", "", ""}),
                         [](const auto& test) { return test.param.name; });

TEST(ColourPickerBindingTest, AClickPicksThroughTheDialogHost)
{
    TestForm t;
    ColourPicker picker{t.form, "cpBack"};
    picker.colour(0x0000FF);
    auto& button = t.show<host::ColourButton>(picker);
    EXPECT_EQ(button.colour(), QColor(255, 0, 0));
    const auto dialogs = std::make_shared<host::HeadlessDialogHost>();
    setDialogHost(dialogs);
    picker.Change = t.note("Change");
    t.open();
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_TRUE(t.events.empty()) << "a cancelled dialog changes nothing";
    dialogs->colourToPick(0xFF0000);
    QTest::mouseClick(&button, Qt::LeftButton);
    setDialogHost(nullptr);
    EXPECT_EQ(picker.colour(), 0xFF0000);
    EXPECT_EQ(button.colour(), QColor(0, 0, 255));
    EXPECT_EQ(t.events, Events{"Change"});
}

} // namespace
} // namespace qncal::test
