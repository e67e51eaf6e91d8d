# The icon and shader bundle, compiled into the executable.
quorrel_module(quorrel_resources SOURCES ${CMAKE_CURRENT_LIST_DIR}/Resources.h ${CMAKE_CURRENT_LIST_DIR}/Resources.cpp LINK Qt6::Core)
