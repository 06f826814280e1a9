"""The worked examples of every plan country give through the module what the library's own tests expect,
with the configuration files those tests write."""

import pytest

import numbering

SIX_COUNTRIES = {
    "dialingrules.properties": """FR=33:00:EFG:0FG:G:France:P
RU=7:810:EFG:8FG:G:Russia:P
US=1:011:EFG:1FG:G:United States:P
CH=41:00:EFG:0FG:G:Switzerland:P
CO=57:00:EFG:0FG:G:Colombia:P
NZ=64:00:EFG:0FG:G:New Zealand:P
"""
}

DIALABLE_VARIANTS = {
    "dialingrules.properties": """CO=57:00:EFG:0FG:G:Colombia:P
ES=34:00:EFG:FG:G:Spain:P
MX=52:00:EFG:01FG:G:Mexico:P
AU=61:0011:EFG:0FG:G:Australia:P
RU=7:810:EFG:8FG:G:Russia:P
""",
    "r7731cnp_57.properties": "OP_DEFAULT=4\nOP_0000=5\nOP_0001=7\n",
    "r7731cnp_61.properties": "Translate=1\nAC_0000=2\nAC_0001=3\nAC_0002=7\nAC_0003=8\n",
}

GERMANY = {
    "dialingrules.properties": """DE=49:00:EF:0F::Germany:P
ES=34:00:EF:::Spain:P
IT=39:00:EF:0F:F:Italy:P
PT=351:00:EF:E:F:Portugal:P
CO=57:00:EF:0F:F:Colombia:P
""",
    "r7731cnp_57.properties": "OP_0000=5\nOP_0001=7\n",
    "qap_cnp_mask.properties": "Mask_49_1=+C (A) xxx xxxx\n",
    "specific_format_activation.properties": "cnp_49=true\n",
    "r7731cnp_49.properties": "Translate=1\nAC_0000=30\nAC_0001=89\nAC_0002=221\nAC_0003=7071\n",
}

TRUNK_PREFIX_PLANS_RULES = """AR=54:00:EFG:0FG:G:Argentina:P
AT=43:00:EFG:0FG:G:Austria:P
AU=61:0011:EFG:0FG:G:Australia:P
BE=32:00:EFG:0FG:0FG:Belgium:P
FR=33:00:EFG:0FG:G:France:P
GB=44:00:EFG:0FG:G:United Kingdom:P
IE=353:00:EFG:0FG:G:Ireland:P
NL=31:00:EFG:0FG:G:Netherlands:P
"""
TRUNK_PREFIX_PLANS_CODES = {
    "31": "10 111 20 30 346 40 50 70 71",
    "32": "10 11 2 3 4 50 71 80 89 9",
    "43": "1 2236 316 463 512 5574 650 6542 660 662 664 676 680 699 720 732 800 810 900",
    "44": "113 121 1223 131 1387 13873 141 161 16977 1865 20 29",
    "353": "1 21 402 404 41 61 818 83 85 86 87 89 91",
    "54": "11 220 2202 221 223 261 294 2966 341 351 3543 381 600 800 810",
    "61": "2 3 7 8",
}


def trunk_prefix_plans(translate="1", tables=True, mexico="MX=52:00:EFG:01FG:G:Mexico:P\n"):
    """The dialing rules of the eight countries and France, and their area-code tables."""
    files = {"dialingrules.properties": TRUNK_PREFIX_PLANS_RULES + mexico}
    for calling_code, codes in TRUNK_PREFIX_PLANS_CODES.items() if tables else ():
        entries = "".join(f"AC_{index:04d}={code}\n" for index, code in enumerate(codes.split()))
        files[f"r7731cnp_{calling_code}.properties"] = f"Translate={translate}\n" + entries
    return files


SAMPLE = trunk_prefix_plans()
NO_TRANSLATE = trunk_prefix_plans(translate="0")
NO_TABLE = trunk_prefix_plans(tables=False)
MEXICO_2019 = trunk_prefix_plans(mexico="MX=52:00:EFG:FG:FG:Mexico:P\n")

# Sites: country, external prefix, area codes; local numbers are shorter than 5 digits. Berlin's exception
# numbers begin with 11.
PARIS, MOSCOW, NEW_YORK = ("FR", "9", "1"), ("RU", "9", "495"), ("US", "9", "212")
ZURICH, BOGOTA, AUCKLAND = ("CH", "0", "44"), ("CO", "0", "1"), ("NZ", "1", "9")
GUADALAJARA, SYDNEY, BERLIN = ("MX", "9", "33"), ("AU", "0", "2"), ("DE", "0", "30")
NL20, BE2, AT1, AT1EXT9, GB20 = ("NL", "0", "20"), ("BE", "0", "2"), ("AT", "0", "1"), ("AT", "9", "1"), ("GB", "9", "20")
IE1, IE1EXT0, AU2, AR11, MX55 = ("IE", "9", "1"), ("IE", "0", "1"), ("AU", "0", "2"), ("AR", "0", "11"), ("MX", "9", "55")

# name, configuration, site, number, then what canonical, dial, gsm and clid give (None: not checked).
EXAMPLES = [
    ("FrNational", SIX_COUNTRIES, PARIS, "01 23 45 67 89", "+33 (0) 123456789", "90123456789", None,
        ("123456789", "National")),
    ("FrToRussia", SIX_COUNTRIES, PARIS, "0079161234567", "+7 (916) 1234567", "90079161234567", None,
        ("79161234567", "International")),
    ("FrInternalExtension", SIX_COUNTRIES, PARIS, "1234", "1234", "1234", None, ("1234", "Private")),
    ("RuNational", SIX_COUNTRIES, MOSCOW, "8 916 123-45-67", "+7 (916) 1234567", "989161234567", None,
        ("9161234567", "National")),
    ("RuOwnArea", SIX_COUNTRIES, MOSCOW, "84951234567", "+7 (495) 1234567", "91234567", None, ("1234567", "Public")),
    ("UsLocal", SIX_COUNTRIES, NEW_YORK, "555-1234", "+1 (212) 5551234", "95551234", None, ("5551234", "Public")),
    ("UsToFrance", SIX_COUNTRIES, NEW_YORK, "011 33 1 23 45 67 89", "+33 (0) 123456789", "901133123456789", None,
        ("330123456789", "International")),
    ("ChOwnArea", SIX_COUNTRIES, ZURICH, "044 123 45 67", "+41 (44) 1234567", "01234567", None, ("1234567", "Public")),
    ("ChFreePhone", SIX_COUNTRIES, ZURICH, "0800 123 456", "+41 800123456", "00800123456", None,
        ("800123456", "National")),
    ("CoLocal", SIX_COUNTRIES, BOGOTA, "234 56 78", "+57 (1) 2345678", "02345678", None, ("2345678", "Public")),
    ("CoOtherArea", SIX_COUNTRIES, BOGOTA, "0942345678", "+57 (4) 2345678", "00942345678", None,
        ("42345678", "National")),
    ("NzOtherArea", SIX_COUNTRIES, AUCKLAND, "04 307 1234", "+64 (4) 3071234", "1043071234", None,
        ("43071234", "National")),
    ("NzSixDigitsOutsideAreaTwo", SIX_COUNTRIES, AUCKLAND, "307123", "307123", "1307123", None, ("307123", "Private")),
    ("ColombiaAbroadWithCarrier", DIALABLE_VARIANTS, BOGOTA, "005 34 91 123 4567", None, "0004911234567911234567",
        None, None),
    ("ColombiaMobile", DIALABLE_VARIANTS, BOGOTA, "+57 300 123 4567", None, "0033001234567", None, None),
    ("MexicoMobileOfAnotherArea", DIALABLE_VARIANTS, GUADALAJARA, "+52 1 55 1234 5678", None, "90455512345678", None,
        None),
    ("AustraliaLocalRate", DIALABLE_VARIANTS, SYDNEY, "1300 123 456", None, "01300123456", None, None),
    ("RussiaNineDigits", DIALABLE_VARIANTS, MOSCOW, "+7 812 123 456", None, "9812123456", None, None),
    ("DeNational", GERMANY, BERLIN, "(089) 1234-5678", "+49 (89) 123 45678", None, None, None),
    ("DeLocalSubscriber", GERMANY, BERLIN, "76985411", "+49 (30) 769 85411", None, None, None),
    ("DeExceptionNumber", GERMANY, BERLIN, "11833", "11833", None, None, None),
    ("DeGsm", GERMANY, BERLIN, "030 1234567", None, None, "+4930123 4567", None),
    ("DeDialledNational", GERMANY, BERLIN, " 030 1234567", None, "01234567", None, None),
    ("DeLongDistance", GERMANY, BERLIN, "+49 89 12345678", None, "008912345678", None, None),
    ("DeAbroad", GERMANY, BERLIN, "0039 06 1234 5678", "+39 (0) 0612345678", None, None,
        ("390612345678", "International")),
    ("NlTwoDigitArea", SAMPLE, NL20, "0201234567", "+31 (20) 1234567", None, None, None),
    ("NlExtPrefixAndLocal", SAMPLE, NL20, "02345678", "+31 (20) 2345678", None, None, None),
    ("NlLocalWithoutTranslation", NO_TRANSLATE, NL20, "6123456", "6123456", None, None, None),
    ("BeBrussels", SAMPLE, BE2, "022345678", "+32 (2) 2345678", None, None, None),
    ("BeWithoutTrunkPrefix", SAMPLE, BE2, "2345678", "+32 (2) 2345678", None, None, None),
    ("AtLocal", SAMPLE, AT1, "58800", "+43 (1) 58800", None, None, None),
    ("AtEmptyTable", NO_TABLE, AT1EXT9, "0158800", "+43 (0) 158800", None, None, None),
    ("GbLondon", SAMPLE, GB20, "02079460123", "+44 (20) 79460123", None, None, None),
    ("GbExtPrefixAndLocal", SAMPLE, GB20, "979460123", "+44 (20) 79460123", None, None, None),
    ("IeExtPrefixAndLocal", SAMPLE, IE1, "92345678", "+353 (1) 2345678", None, None, None),
    ("IeExtPrefixZeroAndFreephone", SAMPLE, IE1EXT0, "01800123456", "1800123456", None, None, None),
    ("AuSydney", SAMPLE, AU2, "0292345678", "+61 (2) 92345678", None, None, None),
    ("AuLocalRate1300", SAMPLE, AU2, "1300123456", "+61 1300 123456", None, None, None),
    ("ArLocalMobile", SAMPLE, AR11, "1523456789", "+54 (911) 23456789", None, None, ("91123456789", "National")),
    ("ArSiteArea", SAMPLE, AR11, "01143211234", "+54 (11) 43211234", None, None, ("43211234", "Public")),
    ("ArInternationalUnsplittable", SAMPLE, AR11, "+54 9 999 123 4567", "99991234567", None, None, None),
    ("MxMobileOfTheSiteArea", SAMPLE, MX55, "0445512345678", "+52 (155) 12345678", None, None,
        ("15512345678", "National")),
    ("MxMobileIn2019", MEXICO_2019, MX55, "0445512345678", "+52 (55) 12345678", None, None, None),
    ("MxInternationalMobileIn2019", MEXICO_2019, MX55, "+52 1 55 1234 5678", None, None, None, ("12345678", "Public")),
]


@pytest.mark.parametrize("name, files, at, number, canonical, dial, gsm, clid", EXAMPLES, ids=[e[0] for e in EXAMPLES])
def test_gives_what_the_library_tests_expect(configure, name, files, at, number, canonical, dial, gsm, clid):
    configure(files)
    country, ext_prefix, area_codes = at
    site = numbering.Site(country, ext_prefix=ext_prefix, local_length=5, area_codes=area_codes,
                          except_begin="11" if at == BERLIN else "")
    expected = {"canonical": canonical, "dial": dial, "gsm": gsm, "clid": clid}
    actual = {what: getattr(numbering, what)(site, number) if value is not None else None
              for what, value in expected.items()}
    assert expected == actual
