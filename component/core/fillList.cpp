#include "core/fillList.h"

#include "core/RecordSet.h"

namespace qncal {

void fillList(ListTarget& list, std::string_view sql, std::string_view numberField, std::string_view textField,
              NullText nullText)
{
    RecordSet rows = RecordSet::openReadOnly(sql);
    for (; !rows.isEOF(); rows.moveNext()) {
        // An empty text is a text; only a null is none.
        const Variant text = rows.field(textField);
        if (text.isNull() && nullText == NullText::skipped)
            continue;
        std::int32_t number = -1;
        rows.read(numberField, number);
        list.addLine(text.isNull() ? std::string() : text.toText(), number);
    }
    rows.close();
    list.refresh();
}

} // namespace qncal
