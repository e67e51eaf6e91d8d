// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/TerminateHandler.h"

#include <cstdlib>
#include <exception>
#include <iostream>
#include <typeinfo>

void TerminateHandler()
{
    std::exception_ptr const exception = std::current_exception();
    if (!exception) {
        std::cout << "Unhandled exception. Set break-point in main to debug\n" << std::flush;
        std::abort();
    }
    // An exception of any other type leaves the handler, which ends the process as well.
    try {
        std::rethrow_exception(exception);
    } catch (std::exception const& e) {
        char const* name = typeid(e).name();
        if (*name == '*') {
            ++name;
        }
        std::cout << "in std::set_terminate(): Caught unhandled exception: '" << name
                  << "   what(): " << e.what() << "'\n"
                  << std::flush;
        std::abort();
    }
}
