// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

/// Registers the compiled-in icon and shader bundle (":/Icons/", ":/Misc/OpenGL/Shaders/").
int qInitResources_Quorrel();
