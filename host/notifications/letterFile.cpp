#include "notifications/letterFile.h"

#include <fstream>

namespace qncal::host {

std::string writeLetterFile(const std::filesystem::path& file, const std::string& document)
{
    std::error_code error;
    std::filesystem::create_directories(file.parent_path(), error);
    if (error)
        return "the folder of the letters cannot be made: " + error.message();
    std::filesystem::path unfinished = file;
    unfinished += ".part";
    {
        std::ofstream out(unfinished, std::ios::binary);
        out << document;
        out.close();
        if (!out) {
            std::filesystem::remove(unfinished, error);
            return "the letter cannot be written to " + file.parent_path().string();
        }
    }
    std::filesystem::rename(unfinished, file, error);
    return error ? "the letter cannot be written: " + error.message() : std::string();
}

} // namespace qncal::host
