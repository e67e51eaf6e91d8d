// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/TerminateHandler.h"

#include <exception>
#include <stdexcept>
#include <string_view>
#include <thread>

/// Ends by the terminate handler, in the way its argument says.
int main(int, char** argv)
{
    std::set_terminate(TerminateHandler);
    std::string_view const how = argv[1];
    if (how == "standard") {
        throw std::runtime_error("boom");
    }
    if (how == "thread") {
        std::thread([] { throw std::runtime_error("boom"); }).join();
    }
    if (how == "other") {
        throw 42;
    }
    std::terminate();
}
