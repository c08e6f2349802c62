# stb_image is a header that knows no platform, so a cross build takes the build machine's copy.
find_path(KALVORA_STB_INCLUDE stb_image.h PATH_SUFFIXES stb REQUIRED NO_CMAKE_FIND_ROOT_PATH
          HINTS /usr/include)
add_library(stb INTERFACE)
target_include_directories(stb SYSTEM INTERFACE ${KALVORA_STB_INCLUDE})
