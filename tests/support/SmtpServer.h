#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <sys/types.h>
#include <vector>

namespace qncal::test {

/// A mail server in a process of its own, on a free port of the loopback interface, ended with this object. What it
/// can be told to do wrong is told in smtpServer.py.
class SmtpServer {
public:
    /// Messages are kept in the folder. Throws `std::runtime_error` when the server does not start.
    SmtpServer(const std::string& mode, const std::filesystem::path& folder,
               const std::vector<std::string>& certificateAndKey = {});
    ~SmtpServer();
    SmtpServer(const SmtpServer&) = delete;
    SmtpServer& operator=(const SmtpServer&) = delete;

    std::uint16_t port() const { return port_; }
    /// The messages received so far as they came, after a line with the sender and the recipients of the envelope.
    std::vector<std::string> messages() const;
    /// The commands that a bad server got, a line each.
    std::string commands() const;

private:
    void start(std::vector<std::string> arguments);

    std::filesystem::path folder_;
    pid_t process_ = -1;
    std::uint16_t port_ = 0;
};

} // namespace qncal::test
