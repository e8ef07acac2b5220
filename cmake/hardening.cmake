# What makes a fault in a program harder to use: addresses that change from run to run, checks of the stack, of the C
# library's calls and of the C++ library's containers, tables that cannot be written. tools/check-hardening reads all of it
# off the programs. Sanitizers and fuzzing bring checks of their own.
include(CheckCXXCompilerFlag)

set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(static_link -static)
if(NOT CMAKE_CXX_FLAGS MATCHES "-fsanitize")
    add_compile_options(-fstack-protector-strong)
    add_link_options(-fstack-protector-strong)  # some systems have its part in a library
    add_compile_definitions(_GLIBCXX_ASSERTIONS)
    add_compile_options($<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE> $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=3>)
endif()
if(WIN32)
    enable_language(RC)
    check_cxx_compiler_flag(-mguard=cf has_control_flow_guard)
    if(has_control_flow_guard)
        add_compile_options(-mguard=cf)
        add_link_options(-mguard=cf)
    endif()
else()
    add_link_options(-Wl,-z,relro,-z,now)
    set(static_link -static-pie)
endif()
