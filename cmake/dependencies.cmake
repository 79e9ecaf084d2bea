# Every library that the build looks for; the Debian packages that bring them, each with its
# purpose, stand in dependencies.txt at the root.

find_package(Freetype REQUIRED)
find_package(GIF REQUIRED)
find_package(nlohmann_json 3.11 REQUIRED)
if(ORVANE_DESKTOP)
  find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets PrintSupport Multimedia)
endif()
if(ORVANE_TESTS)
  find_package(GTest REQUIRED)
  if(ORVANE_DESKTOP)
    find_package(Qt6 6.4 REQUIRED COMPONENTS Test)
  endif()
endif()
if(ORVANE_BENCH)
  find_package(benchmark REQUIRED)
endif()
