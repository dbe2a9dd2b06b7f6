# For every test: the suppressions of the leak checker.
set(PELNAR_TEST_ENVIRONMENT
    "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/lsan.supp:print_suppressions=0")
# In seconds; only a test that hangs takes so long.
set(PELNAR_TEST_TIMEOUT 120)
set(PELNAR_LONG_TEST_TIMEOUT 14400)
if(PELNAR_SANITIZE)
    set(PELNAR_TEST_TIMEOUT 400)
endif()
