// CountryNames.cpp

#include "CountryNames.h"

#include "Poco/FileStream.h"
#include "Poco/JSON/Array.h"
#include "Poco/JSON/Object.h"
#include "Poco/JSON/Parser.h"

namespace numbering {
namespace generator {

namespace {

// Regions that have their own calling-code entry but are not ISO 3166-1 countries.
const std::map<std::string, std::string> REGIONS_WITHOUT_ISO_ENTRY = {
	{"AC", "Ascension Island"},
	{"TA", "Tristan da Cunha"},
	{"XK", "Kosovo"},
};

} // namespace

CountryNames::CountryNames(const std::string& isoCodesJson):
	m_Names(REGIONS_WITHOUT_ISO_ENTRY)
{
	Poco::FileInputStream input(isoCodesJson);
	Poco::JSON::Parser parser;
	Poco::JSON::Object::Ptr root = parser.parse(input).extract<Poco::JSON::Object::Ptr>();
	Poco::JSON::Array::Ptr countries = root->getArray("3166-1");
	for (std::size_t i = 0; i < countries->size(); ++i)
	{
		Poco::JSON::Object::Ptr country = countries->getObject(static_cast<unsigned>(i));
		m_Names[country->getValue<std::string>("alpha_2")] = country->getValue<std::string>("name");
	}
}

std::string CountryNames::name(const std::string& region) const
{
	auto it = m_Names.find(region);
	return it == m_Names.end() ? std::string() : it->second;
}

} // namespace generator
} // namespace numbering
