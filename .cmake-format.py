# For cmake-format 0.6.13.
with section("parse"):
    additional_commands = {
        "tarn_benchmark": {"pargs": 1, "kwargs": {"LIBRARIES": "*"}},
        "tarn_test": {
            "pargs": 1,
            "flags": ["INTERNAL", "WINDOW_SYSTEM"],
            "kwargs": {"TIMEOUT": 1, "LIBRARIES": "*", "DEFINITIONS": "*"},
        },
    }
with section("format"):
    line_width = 120
    max_subgroups_hwrap = 4
    max_pargs_hwrap = 6
with section("markup"):
    enable_markup = False
