"""The module's own behaviour: exceptions, bulk conversion, log lines, the configuration directory, threads."""

import concurrent.futures
import logging

import pytest

import numbering

RULES = {
    "dialingrules.properties": """DE=49:00:EFG:0FG:G:Germany:P
FR=33:00:EFG:0FG:G:France:P
GB=44:00:EFG:0FG:G:United Kingdom:P
""",
    "qap_cnp_mask.properties": "Mask_49_1=+C (a) xxx xxxx\n",
    "r7731cnp_49.properties": "Translate=1\nAC_0000=30\nAC_0001=89\n",
}

# Numbers of every kind at a Berlin site: national, local, internal, foreign, service code, malformed, empty.
NUMBERS = ["089 123456", "030 1234567", "7654321", "1234", "+33 1 23 45 67 89", "0044 20 7946 0123", "*21#",
           "12x4", "+", " ", ""]
SINGLE = {
    "canonical": numbering.canonical,
    "gsm": numbering.gsm,
    "dial": numbering.dial,
    "clid": numbering.clid,
    "parse": numbering.parse,
    "check": lambda site, number: numbering.check(number),
}


@pytest.fixture
def berlin(configure):
    configure(RULES)
    return numbering.Site("DE", ext_prefix="0", local_length=5, area_codes="30")


@pytest.mark.parametrize("call, error, message", [
    (lambda: numbering.Site("D"), ValueError,
        "'strCountryCode' parameter can not be null and must be an Alpha-2 ISO 3166 country code"),
    (lambda: numbering.Site("IT"), numbering.UnsupportedCountryError, "Country code 'IT' is not supported"),
    (lambda: numbering.clid(numbering.Site("DE"), ""), ValueError, "'strPhoneNumber' parameter can not be null"),
    (lambda: numbering.convert_many(numbering.Site("DE"), ["1234", ""], "clid"), ValueError,
        "'strPhoneNumber' parameter can not be null"),
    (lambda: numbering.convert_many(numbering.Site("DE"), ["1234"], "canon"), ValueError,
        "unknown conversion 'canon': expected canonical, gsm, dial, clid, parse or check"),
    (lambda: numbering.convert_many(numbering.Site("DE"), ("1234", None), "check"), TypeError,
        "convert_many: item 1 is a NoneType, not a str"),
], ids=["ShortCountry", "UnknownCountry", "EmptyClid", "EmptyClidInBulk", "UnknownConversion", "NotAString"])
def test_error_raises_with_the_library_message(configure, call, error, message):
    configure(RULES)
    with pytest.raises(error) as raised:
        call()
    assert message == str(raised.value)


def test_site_of_a_country_that_left_the_configuration_raises(berlin, configure):
    configure({"dialingrules.properties": "FR=33:00:EFG:0FG:G:France:P\n"})
    with pytest.raises(numbering.UnsupportedCountryError) as raised:
        numbering.clid(berlin, "+49 30 1234567")
    assert "Country code 'DE' is not supported" == str(raised.value)


@pytest.mark.parametrize("what", SINGLE)
def test_convert_many_equals_single_calls(berlin, what):
    numbers = NUMBERS[:-1] if what == "clid" else NUMBERS
    expected = [SINGLE[what](berlin, number) for number in numbers]
    assert expected == numbering.convert_many(berlin, numbers, what)
    assert expected == numbering.convert_many(berlin, (number for number in numbers), what)


def test_convert_many_lays_canonical_numbers_out_by_the_pattern(berlin):
    assert (["+49 89 123456", "1234"] ==
            numbering.convert_many(berlin, ["089 123456", "1234"], "canonical", pattern="+C a x"))


def test_log_lines_go_to_python_logging_and_debug_lines_only_with_traces(berlin, caplog):
    caplog.set_level(logging.DEBUG, logger="numbering")
    numbering.canonical(berlin, "12x4")
    assert [("numbering", logging.ERROR,
             "N9numbering17ZelNumberingRulesE - ZelNumberingRules::makeCanonicalNumber exception: 'strPhoneNumber' "
             "parameter is not a phone number - PhoneNumber: '12x4', Pattern: ''\n  DialRules: CountryCode : 'DE', "
             "External Prefix : '0', Local length : 5, AreaCode : '30', m_areaCodesList :  '30', Except length : 0, "
             "Except begin : ''")] == caplog.record_tuples
    caplog.clear()
    numbering.set_traces(True)
    try:
        assert numbering.traces()
        numbering.canonical(berlin, "1234")
    finally:
        numbering.set_traces(False)
    assert ("numbering", logging.DEBUG, "N9numbering17ZelNumberingRulesE - Nothing to do for1234") in caplog.record_tuples
    caplog.clear()
    numbering.canonical(berlin, "1234")
    assert [] == caplog.record_tuples


def test_new_configuration_directory_is_read_at_once(berlin, configure, tmp_path):
    assert "+49 (89) 123 456" == numbering.canonical(berlin, "089 123456")
    configure({**RULES, "qap_cnp_mask.properties": "Mask_49_1=+C-a-x\n"})
    assert f"{tmp_path}/" == numbering.config_directory()
    assert "+49-89-123456" == numbering.canonical(berlin, "089 123456")


def test_country_queries(berlin):
    assert [("France", "FR", "33"), ("Germany", "DE", "49"), ("United Kingdom", "GB", "44")] == numbering.countries()
    assert ("GB", "United Kingdom", "GB", "44", "") == (
        numbering.country_code("United Kingdom"), numbering.country_name("GB"), numbering.country_code_of_number("44"),
        numbering.country_number("GB"), numbering.country_code("Italy"))


def test_threads_converting_from_the_first_call_on_give_what_one_thread_gives(configure):
    configure(RULES)
    sites = [numbering.Site(*fields) for fields in (("DE", "0", 5, "30"), ("FR", "0", 5, "1"), ("GB", "9", 5, "20"))]
    # The library is reset again, so that the threads race to its first use.
    configure(RULES)
    with concurrent.futures.ThreadPoolExecutor(max_workers=6) as pool:
        futures = [pool.submit(numbering.convert_many, site, NUMBERS[:-1] * 200, what)
                   for site in sites for what in ("dial", "clid")]
        results = [future.result() for future in futures]
    assert [numbering.convert_many(site, NUMBERS[:-1] * 200, what) for site in sites
            for what in ("dial", "clid")] == results
