# Libraries that several layers use. scripts/bootstrap installs them.

find_program(LIRRA_CCACHE ccache)
if(LIRRA_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${LIRRA_CCACHE})
endif()

# Where scripts/bootstrap puts TagLib when the system's is too old.
if(DEFINED ENV{LIRRA_CACHE_DIR})
    set(lirra_cache $ENV{LIRRA_CACHE_DIR})
elseif(DEFINED ENV{XDG_CACHE_HOME})
    set(lirra_cache $ENV{XDG_CACHE_HOME}/lirra)
else()
    set(lirra_cache $ENV{HOME}/.cache/lirra)
endif()
list(APPEND CMAKE_PREFIX_PATH ${lirra_cache}/taglib-2.0.2)
if(LIRRA_FUZZ)
    include(LirraInstrumentedTagLib)
endif()

find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Test)
find_package(ZLIB REQUIRED)
find_package(taglib 2.0 CONFIG REQUIRED)
