#include "qt/bindings/keyCodes.h"

#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace qncal::host {

namespace {

struct NamedKey {
    int key;
    std::int32_t code;
};

constexpr std::array<NamedKey, 19> namedKeys{{
    {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},      {Qt::Key_Backtab, 9}, {Qt::Key_Return, 13}, {Qt::Key_Enter, 13},
    {Qt::Key_Shift, 16},    {Qt::Key_Control, 17}, {Qt::Key_Alt, 18},    {Qt::Key_Escape, 27}, {Qt::Key_PageUp, 33},
    {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},     {Qt::Key_Home, 36},   {Qt::Key_Left, 37},   {Qt::Key_Up, 38},
    {Qt::Key_Right, 39},    {Qt::Key_Down, 40},    {Qt::Key_Insert, 45}, {Qt::Key_Delete, 46},
}};

} // namespace

std::int32_t keyCodeOf(const QKeyEvent& key)
{
    const int code = key.key();
    if ((code >= Qt::Key_0 && code <= Qt::Key_9) || (code >= Qt::Key_A && code <= Qt::Key_Z) || code == Qt::Key_Space)
        return code;
    if (code >= Qt::Key_F1 && code <= Qt::Key_F12)
        return 112 + code - Qt::Key_F1;
    const auto found =
        std::find_if(namedKeys.begin(), namedKeys.end(), [=](const NamedKey& k) { return k.key == code; });
    return found == namedKeys.end() ? 0 : found->code;
}

} // namespace qncal::host
