#pragma once

#include <string_view>

namespace qncal {

/// The category words of the merge field catalogue: each names the record set that holds its fields.
namespace mergeCategory {
inline constexpr std::string_view contactInfo = "ContactInfo";
inline constexpr std::string_view contactNotes = "ContactNotes";
inline constexpr std::string_view companyInfo = "CompanyInfo";
inline constexpr std::string_view companyNotes = "CompanyNotes";
inline constexpr std::string_view clientInfo = "ClientInfo";
inline constexpr std::string_view softwareInfo = "SoftwareInfo";
inline constexpr std::string_view firmInfo = "FirmInfo";
inline constexpr std::string_view appointInfo = "AppointInfo";
inline constexpr std::string_view taskInfo = "TaskInfo";
inline constexpr std::string_view docketInfo = "DocketInfo";
} // namespace mergeCategory

/// Which blocks the catalogue holds: the values of `clsInsertFieldsInRTB::ListType`.
namespace mergeListType {
inline constexpr int company = 1;
inline constexpr int contact = 2;
inline constexpr int contactAddress = 3;
inline constexpr int appointment = 5;
inline constexpr int timeEntry = 6;
inline constexpr int task = 8;
} // namespace mergeListType

/// The variants of the catalogue: the values of `clsInsertFieldsInRTB::MergeFieldListUse`.
namespace mergeListUse {
inline constexpr int normal = 1;
inline constexpr int batch = 2;
inline constexpr int singleField = 3;
inline constexpr int writeBack = 5;
} // namespace mergeListUse

} // namespace qncal
