#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <exception>
#include <functional>
#include <vector>

namespace qncal::host {

/// Runs the work in so many processes at once and waits for them; a failure of the test when it throws in one.
inline void runInProgramsAtOnce(int programs, const std::function<void()>& work)
{
    std::vector<pid_t> children;
    for (int i = 0; i < programs; ++i) {
        const pid_t child = fork();
        if (child != 0) {
            children.push_back(child);
            continue;
        }
        // The child must not run the parent's tests or exit handlers.
        try {
            work();
            _exit(0);
        } catch (const std::exception&) {
            _exit(1);
        }
    }
    for (const pid_t child : children) {
        int status = -1;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        EXPECT_EQ(status, 0);
    }
}

} // namespace qncal::host
