#include "firmcal/Program.h"

#include <unistd.h>

#include <iostream>

int main(int argumentCount, char** arguments)
{
    return qncal::firmcal::run({arguments + 1, arguments + argumentCount},
                               {std::cin, std::cout, std::cerr, isatty(STDIN_FILENO) != 0, isatty(STDOUT_FILENO) != 0,
                                isatty(STDERR_FILENO) != 0});
}
