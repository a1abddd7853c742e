#include "compare.h"
#include "controls/Form.h"
#include "items/frmSelectStartTime.h"
#include "qt/WindowClasses.h"
#include "qt/windows/ColourSchemesForm.h"
#include "settings/frmApptCustomFields.h"
#include "settings/frmApptStatusOptions.h"
#include "settings/frmChangeApptStatusFields.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDialog>

#include <memory>

namespace qncal::bench {
namespace {

// The time from nothing to a window on the screen, painted once, and away again; beside that of an empty dialog.
constexpr const char* emptyDialog = "open_QDialog";

/// Without a display: what is measured is the work of the windows.
void startQt()
{
    static int argumentCount = 1;
    static char name[] = "benchmarks";
    static char* arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QApplication application(argumentCount, arguments);
}

void showOnce(QDialog& window)
{
    window.show();
    QApplication::processEvents();
    benchmark::DoNotOptimize(window.grab());
}

void openEmptyDialog(benchmark::State& state)
{
    startQt();
    for (auto _ : state) {
        QDialog window;
        showOnce(window);
    }
}

template <class FormType>
void openWindow(benchmark::State& state, double atMost)
{
    startQt();
    FormType form;
    const host::WindowClasses windows = host::standardWindows();
    for (auto _ : state) {
        const std::unique_ptr<host::FormWindow> window(windows.make(form, nullptr));
        showOnce(*window);
    }
    compareWith(state, emptyDialog, atMost);
}

template <class FormType>
void add(const char* name, double atMost)
{
    benchmark::RegisterBenchmark(name, openWindow<FormType>, atMost)->Unit(benchmark::kMillisecond);
}

[[maybe_unused]] const bool registered = [] {
    benchmark::RegisterBenchmark(emptyDialog, openEmptyDialog)->Unit(benchmark::kMillisecond);
    add<frmChangeApptStatusFields>("open_frmChangeApptStatusFields", 40);
    add<frmApptCustomFields>("open_frmApptCustomFields", 40);
    add<frmApptStatusOptions>("open_frmApptStatusOptions", 60); // 42 icons
    add<host::ColourSchemesForm>("open_frmColourSchemes", 40);
    add<frmSelectStartTime>("open_frmSelectStartTime", 40);
    return true;
}();

} // namespace
} // namespace qncal::bench
