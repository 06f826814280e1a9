"""Telephone number conversion by libNumbering, the library the exchange itself converts with.

A Site describes where numbers are dialled or received; canonical, gsm, dial, clid, parse and check convert one
number, convert_many a whole iterable of them. The library's log lines go to the logger "numbering".
"""

from ._numbering import (
    Site,
    UnsupportedCountryError,
    canonical,
    check,
    clid,
    config_directory,
    convert_many,
    countries,
    country_code,
    country_code_of_number,
    country_name,
    country_number,
    dial,
    gsm,
    parse,
    set_config_directory,
    set_traces,
    traces,
    warm_up,
)

__all__ = [
    "Site",
    "UnsupportedCountryError",
    "canonical",
    "check",
    "clid",
    "config_directory",
    "convert_many",
    "countries",
    "country_code",
    "country_code_of_number",
    "country_name",
    "country_number",
    "dial",
    "gsm",
    "parse",
    "set_config_directory",
    "set_traces",
    "traces",
    "warm_up",
]
