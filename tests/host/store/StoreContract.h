#pragma once

#include "host/store/StoreFactory.h"

#include <cstdint>
#include <string>
#include <vector>

namespace qncal::host {

using Texts = std::vector<std::string>;

/// What any store must do that answers the contract, tried on appointments.
class StoreContract : public StoreTest {
protected:
    std::int32_t addAppointment(const std::string& subject, const Fields& more = {})
    {
        Fields fields{{"Subject", subject}};
        fields.insert(fields.end(), more.begin(), more.end());
        const std::int32_t id = add("Appointments", "AppointmentID", fields);
        step();
        return id;
    }
    std::string byKey(std::int32_t id) const
    {
        return "SELECT Appointments.* FROM Appointments WHERE Appointments.AppointmentID=" + std::to_string(id) + ";";
    }
    std::vector<std::string> subjects(const std::string& sql)
    {
        std::vector<std::string> texts;
        for (const Variant& value : column(sql, "Subject"))
            texts.push_back(value.toText());
        return texts;
    }
    Variant read(std::int32_t id, const std::string& field)
    {
        const auto handle = openReadOnly(byKey(id));
        const Variant value = store().getField(handle, field);
        store().closeRecordset(handle);
        return value;
    }
};

/// The name of a store in the output of its tests.
inline std::string storeName(const testing::TestParamInfo<StoreFactory>& store) { return store.param.name; }

} // namespace qncal::host
