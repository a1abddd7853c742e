#include "compare.h"
#include "controls/Form.h"
#include "items/frmSelectStartTime.h"
#include "qt/WindowRegistry.h"
#include "settings/ColourSchemePage.h"
#include "settings/frmApptCustomFields.h"
#include "settings/frmApptStatusOptions.h"
#include "settings/frmChangeApptStatusFields.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDialog>

namespace qncal::bench {
namespace {

/// The time from nothing to a window on the screen, painted once, and away again; beside that of an empty dialog.
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
BENCHMARK(openEmptyDialog)->Name(emptyDialog)->Unit(benchmark::kMillisecond);

void openWindow(benchmark::State& state, Form& form, double atMost)
{
    startQt();
    const host::WindowRegistry windows = host::standardWindows();
    for (auto _ : state) {
        const std::unique_ptr<host::FormWindow> window(windows.make(form, nullptr));
        showOnce(*window);
    }
    compareWith(state, emptyDialog, atMost);
}

struct ColourSchemesForm : Form {
    ColourSchemesForm() : Form("frmColourSchemes") {}
    ColourSchemePage page{*this};
};

template <class FormType>
void openWindowOf(benchmark::State& state, double atMost)
{
    FormType form;
    openWindow(state, form, atMost);
}

#define QNCAL_WINDOW_BENCHMARK(form, atMost)                                                                           \
    BENCHMARK_CAPTURE(openWindowOf<form>, form, atMost)->Name("open_" #form)->Unit(benchmark::kMillisecond)

QNCAL_WINDOW_BENCHMARK(frmChangeApptStatusFields, 60);
QNCAL_WINDOW_BENCHMARK(frmApptCustomFields, 60);
QNCAL_WINDOW_BENCHMARK(frmApptStatusOptions, 60);
QNCAL_WINDOW_BENCHMARK(ColourSchemesForm, 60);
QNCAL_WINDOW_BENCHMARK(frmSelectStartTime, 60);

} // namespace
} // namespace qncal::bench
