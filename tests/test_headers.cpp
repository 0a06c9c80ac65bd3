// Each target needs a source. CMake compiles the precompiled header of the tests beside it.
