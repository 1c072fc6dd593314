# The hardening that Debian gives its packages, plus bind-now, stack-clash protection and control-flow protection.
include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)

# Not every compiler and processor has these two.
check_cxx_compiler_flag(-fstack-clash-protection MAVA_TUM_HAS_STACK_CLASH_PROTECTION)
check_cxx_compiler_flag(-fcf-protection MAVA_TUM_HAS_CF_PROTECTION)

function(mava_tum_harden target)
    target_compile_options(${target} PRIVATE
        -fstack-protector-strong -Wformat -Werror=format-security
        $<$<BOOL:${MAVA_TUM_HAS_STACK_CLASH_PROTECTION}>:-fstack-clash-protection>
        $<$<BOOL:${MAVA_TUM_HAS_CF_PROTECTION}>:-fcf-protection>)
    # Fortified calls need an optimised build, and they would hide the sanitizers' own interceptors.
    if(NOT MAVA_TUM_SANITIZE)
        target_compile_options(${target} PRIVATE
            $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE>
            $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-D_FORTIFY_SOURCE=3>)
    endif()
    target_link_options(${target} PRIVATE -Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
endfunction()
