#include "support/SmtpServer.h"

#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace qncal::test {

namespace {

/// The interpreter that the system's packages belong to.
constexpr const char* interpreter = "/usr/bin/python3";

/// Empty when there is no such file.
std::string contentOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// What the process prints on its first line.
std::string firstLine(int descriptor)
{
    std::string line;
    char c = 0;
    while (read(descriptor, &c, 1) == 1 && c != '\n')
        line += c;
    return line;
}

} // namespace

SmtpServer::SmtpServer(const std::string& mode, const std::filesystem::path& folder,
                       const std::vector<std::string>& certificateAndKey)
    : folder_(folder)
{
    std::filesystem::create_directories(folder);
    std::vector<std::string> arguments{interpreter, QNCAL_SOURCE_DIR "/tests/support/smtpServer.py", mode,
                                       folder.string()};
    arguments.insert(arguments.end(), certificateAndKey.begin(), certificateAndKey.end());
    start(std::move(arguments));
}

SmtpServer::~SmtpServer()
{
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
}

void SmtpServer::start(std::vector<std::string> arguments)
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe to the mail server");
    std::vector<char*> words;
    for (std::string& argument : arguments)
        words.push_back(argument.data());
    words.push_back(nullptr);
    process_ = fork();
    if (process_ == 0) {
        dup2(ends[1], STDOUT_FILENO);
        // What it says of broken connections belongs to the test, not into the report.
        dup2(open("/dev/null", O_WRONLY), STDERR_FILENO);
        execv(interpreter, words.data());
        _exit(127);
    }
    close(ends[1]);
    const std::string line = process_ < 0 ? std::string() : firstLine(ends[0]);
    close(ends[0]);
    if (line.empty()) {
        if (process_ > 0)
            waitpid(process_, nullptr, 0);
        throw std::runtime_error("the mail server of the tests did not start; scripts/setup installs what it needs");
    }
    port_ = static_cast<std::uint16_t>(std::stoi(line));
}

std::vector<std::string> SmtpServer::messages() const
{
    std::vector<std::string> all;
    for (int number = 1;; ++number) {
        std::string message = contentOf(folder_ / (std::to_string(number) + ".eml"));
        if (message.empty())
            return all;
        all.push_back(std::move(message));
    }
}

std::string SmtpServer::commands() const { return contentOf(folder_ / "commands"); }

} // namespace qncal::test
