// NumberingModule.cpp
// The numbering Python module: sites, conversions, country queries and the configuration directory.

#include "numbering/ZelNumberingConfig.h"
#include "numbering/ZelUnsupportedCountryException.h"

#include "Conversion.h"
#include "Library.h"
#include "LogForwarder.h"
#include "Site.h"

#include <memory>
#include <optional>
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>
#include <string>
#include <tuple>
#include <variant>
#include <vector>

namespace py = pybind11;
using numbering::ZelNumberingConfig;
using numbering::ZelNumberingRules;
using numbering::python::Conversion;
using numbering::python::Library;
using numbering::python::Site;

namespace {

using Release = py::call_guard<py::gil_scoped_release>;
using Clid = std::tuple<std::string, std::string>;
using Parsed = std::tuple<std::string, std::string, std::string, std::string>;

/// One conversion of number at site; called without the GIL.
template <typename Value>
Value convert(const Site& site, const std::string& number, const std::string& what, const std::string& pattern = "")
{
	const Conversion conversion(what, pattern);
	return std::get<Value>(Library::call([&](ZelNumberingRules& rules) { return conversion(rules, site, number); }));
}

std::optional<Clid> clid(const Site& site, const std::string& number)
{
	const Conversion conversion("clid", "");
	const Conversion::Result result =
		Library::call([&](ZelNumberingRules& rules) { return conversion(rules, site, number); });
	if (std::holds_alternative<std::monostate>(result)) return std::nullopt;
	return std::get<Clid>(result);
}

/// The strings of numbers, read with the GIL; anything but a str is refused with its position.
std::vector<std::string> stringsOf(const py::iterable& numbers)
{
	std::vector<std::string> strings;
	if (py::hasattr(numbers, "__len__")) strings.reserve(py::len(numbers));
	for (const py::handle number : numbers)
	{
		if (!py::isinstance<py::str>(number))
		{
			throw py::type_error("convert_many: item " + std::to_string(strings.size()) + " is a " +
								 std::string(py::str(number.get_type().attr("__name__"))) + ", not a str");
		}
		strings.push_back(number.cast<std::string>());
	}
	return strings;
}

std::vector<Conversion::Result> convertMany(
	const Site& site, const py::iterable& numbers, const std::string& what, const std::string& pattern)
{
	const Conversion conversion(what, pattern);
	const std::vector<std::string> strings = stringsOf(numbers);
	const py::gil_scoped_release release;
	return Library::call([&](ZelNumberingRules& rules) { return conversion.all(rules, site, strings); });
}

std::unique_ptr<Site> makeSite(std::string country,
	std::string extPrefix,
	int localLength,
	std::string areaCodes,
	int exceptLength,
	std::string exceptBegin)
{
	const py::gil_scoped_release release;
	return Library::call([&](ZelNumberingRules&) {
		return std::make_unique<Site>(country, extPrefix, localLength, areaCodes, exceptLength, exceptBegin);
	});
}

using SiteFields = std::tuple<std::string, std::string, int, std::string, int, std::string>;

SiteFields fieldsOf(const Site& site)
{
	return {site.country(), site.extPrefix(), site.localLength(), site.areaCodes(), site.exceptLength(),
		site.exceptBegin()};
}

std::string describe(const Site& site)
{
	return "Site(" + std::string(py::repr(py::str(site.country()))) +
		   ", ext_prefix=" + std::string(py::repr(py::str(site.extPrefix()))) +
		   ", local_length=" + std::to_string(site.localLength()) +
		   ", area_codes=" + std::string(py::repr(py::str(site.areaCodes()))) +
		   ", except_length=" + std::to_string(site.exceptLength()) +
		   ", except_begin=" + std::string(py::repr(py::str(site.exceptBegin()))) + ")";
}

/// Name, code and calling number of every configured country.
std::vector<std::tuple<std::string, std::string, std::string>> countries()
{
	return Library::call([](ZelNumberingRules& rules) {
		ZelNumberingConfig* config = ZelNumberingConfig::getInstance();
		std::vector<std::tuple<std::string, std::string, std::string>> all;
		for (const std::string& name : rules.getCountryList())
		{
			const std::string code = rules.getCountryCode(name);
			all.emplace_back(name, code, config->getCountryNumber(code));
		}
		return all;
	});
}

void defineSite(py::module_& module)
{
	py::class_<Site>(module, "Site",
		"A site: its country (ISO 3166 alpha-2 code of the configuration), the exchange's external prefix, the "
		"length below which a number is internal, its area codes (comma-separated, the site's own first) and "
		"the numbers that need no prefix (their length and beginning). Immutable; threads may share it.")
		.def(py::init(&makeSite), py::arg("country"), py::arg("ext_prefix") = "", py::arg("local_length") = 0,
			py::arg("area_codes") = "", py::arg("except_length") = 0, py::arg("except_begin") = "",
			"Raises ValueError for a code that is not two characters, UnsupportedCountryError for a country the "
			"configuration does not know.")
		.def_property_readonly("country", &Site::country)
		.def_property_readonly("ext_prefix", &Site::extPrefix)
		.def_property_readonly("local_length", &Site::localLength)
		.def_property_readonly("area_codes", &Site::areaCodes)
		.def_property_readonly("except_length", &Site::exceptLength)
		.def_property_readonly("except_begin", &Site::exceptBegin)
		.def("__repr__", &describe)
		.def(py::pickle(&fieldsOf, [](const SiteFields& fields) { return std::apply(makeSite, fields); }));
}

void defineConversions(py::module_& module)
{
	module.def(
		"canonical",
		[](const Site& site, const std::string& number, const std::string& pattern) {
			return convert<std::string>(site, number, "canonical", pattern);
		},
		py::arg("site"), py::arg("number"), py::arg("pattern") = "", Release(),
		"The canonical form of a dialled or received number, \"+49 (30) 1234567\", laid out by pattern (\"C\" "
		"country, \"A\" area, \"a\" area unless it is the trunk prefix, \"x\" one subscriber digit) or, when "
		"pattern is empty, by the country's mask. Internal numbers come back unchanged; \"\" on failure.");
	module.def(
		"gsm", [](const Site& site, const std::string& number) { return convert<std::string>(site, number, "gsm"); },
		py::arg("site"), py::arg("number"), Release(),
		"The compact canonical form, \"+49301234567\"; internal numbers come back unchanged.");
	module.def(
		"dial", [](const Site& site, const std::string& number) { return convert<std::string>(site, number, "dial"); },
		py::arg("site"), py::arg("number"), Release(),
		"What the site's exchange dials for number, external prefix included; \"\" on failure.");
	module.def("clid", &clid, py::arg("site"), py::arg("number"), Release(),
		"The calling-line identity of a received number: (number, origin), the origin \"Private\", \"Public\", "
		"\"National\" or \"International\"; None when the number cannot be made canonical. Raises ValueError "
		"for an empty number.");
	module.def(
		"parse", [](const Site& site, const std::string& number) { return convert<Parsed>(site, number, "parse"); },
		py::arg("site"), py::arg("number"), Release(),
		"(canonical, country number, area part, extension) of number; the canonical form is laid out as "
		"\"+C (A) x\", and the parts are \"\" when it is not canonical.");
	module.def(
		"check",
		[](const std::string& number) {
			return Library::call([&](ZelNumberingRules& rules) { return rules.checkPhoneNumber(number); });
		},
		py::arg("number"), Release(),
		"The digits and keypad characters of number without layout characters, or \"\" when it holds any "
		"other character.");
	module.def("convert_many", &convertMany, py::arg("site"), py::arg("numbers"), py::arg("what"),
		py::arg("pattern") = "",
		"The list of what(site, number) for every str of the iterable numbers, converted without a Python call "
		"per number and without the GIL: what is \"canonical\" (laid out by pattern), \"gsm\", \"dial\", "
		"\"clid\", \"parse\" or \"check\". The first exception of a conversion ends the run.");
}

void defineCountryQueries(py::module_& module)
{
	module.def("countries", &countries, Release(), "(name, code, calling number) of every configured country.");
	module.def(
		"country_code",
		[](const std::string& name) {
			return Library::call([&](ZelNumberingRules& rules) { return rules.getCountryCode(name); });
		},
		py::arg("name"), Release(), "The code of a country name (\"France\" gives \"FR\"), or \"\".");
	module.def(
		"country_name",
		[](const std::string& code) {
			return Library::call([&](ZelNumberingRules& rules) { return rules.getCountryName(code); });
		},
		py::arg("code"), Release(), "The name of a country code, or \"\".");
	module.def(
		"country_code_of_number",
		[](const std::string& number) {
			return Library::call([&](ZelNumberingRules& rules) { return rules.getCountryCodeFromNumber(number); });
		},
		py::arg("number"), Release(), "The code of a calling number (\"33\" gives \"FR\"), or \"\".");
	module.def(
		"country_number",
		[](const std::string& code) {
			return Library::call(
				[&](ZelNumberingRules&) { return ZelNumberingConfig::getInstance()->getCountryNumber(code); });
		},
		py::arg("code"), Release(), "The calling number of a country code (\"FR\" gives \"33\"), or \"\".");
}

void defineLibraryControl(py::module_& module)
{
	module.def("set_config_directory", &Library::setConfigDirectory, py::arg("directory"), Release(),
		"Reads the configuration files from directory from now on: the library is reset, and the next call reads "
		"the files again. Waits for the conversions in progress.");
	module.def("config_directory", &Library::configDirectory, Release(),
		"The directory the configuration files are read from, ending with \"/\".");
	module.def(
		"warm_up", [] { Library::call([](ZelNumberingRules&) {}); }, Release(),
		"Reads the configuration and builds every country's plan and dialable maker now rather than at the first "
		"conversion.");
	module.def("set_traces", &Library::setTraces, py::arg("on"), Release(),
		"Switches the library's debug lines on or off. Every line goes to the logger \"numbering\" of Python's "
		"logging, debug lines at DEBUG, the others at INFO and ERROR.");
	module.def("traces", &Library::traces, Release(), "Whether the library writes its debug lines.");
}

} // namespace

PYBIND11_MODULE(_numbering, module)
{
	module.doc() = "Telephone number conversion by libNumbering";
	numbering::python::LogForwarder::install();
	py::register_exception<numbering::ZelUnsupportedCountryException>(
		module, "UnsupportedCountryError", PyExc_ValueError);
	defineSite(module);
	defineConversions(module);
	defineCountryQueries(module);
	defineLibraryControl(module);
}
