// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/QuorrelMain.h"

int main(int argc, char** argv)
{
    return qMain(argc, argv);
}
