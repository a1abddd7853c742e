#pragma once

namespace qncal {

/// Paths of the application. Virtual so that a test can make one fail.
class FileService {
public:
    virtual ~FileService() = default;
};

} // namespace qncal
