// CanonicalRobustnessTest.cpp

#include "numbering/ZelClid.h"

#include "CanonicalSitesFixture.h"
#include "support/LogCapture.h"

#include "Poco/AutoPtr.h"

#include <gtest/gtest.h>

#include <exception>
#include <functional>
#include <random>
#include <string>
#include <vector>

using numbering::ZelClid;
using numbering::ZelDialRulesItem;
using numbering::test::CanonicalSitesFixture;
using numbering::test::LogCapture;

namespace {

/// Inputs that have broken number parsers: lone separators, unbalanced parentheses, NUL and bytes above 127,
/// long runs.
std::vector<std::string> adversarialInputs()
{
	return {"", "+", "(", ")", "|", " ", "++", "+ ", "()", ")(", "+()", "+(", "+)", "+ (", "+49", "+49 (", "+49 )",
		"+49 ()", "+49 () ", "+49 (30)", "+49 (30) ", "+49 )30( 1", "(30) 123", "0", "00", "000", "0049", "00 49", "+0",
		"***", "|||", "|1", "1|", std::string(1, '\0'), std::string("030") + '\0' + "1234567", "\xff\xfe",
		"+\x80 49 30 1", "*#ABCDabcd", std::string(29, '1'), std::string(30, '1'), std::string(40, '9'),
		"+" + std::string(40, '4'), "00" + std::string(5000, '4'), std::string(100000, '0'),
		"+49 (" + std::string(5000, '3') + ") 1", std::string(5000, ' ') + "1", std::string(3000, '('),
		"+49 (30) " + std::string(3000, ' ')};
}

/// Random strings built from number fragments and hostile characters, with a fixed seed so that a failure
/// can be replayed.
std::vector<std::string> randomInputs(int count)
{
	const std::vector<std::string> pieces{"0", "1", "3", "4", "9", "00", "+", " ", "  ", "(", ")", "|", "-", ".", "*",
		"#", "A", "D", "a", "x", "C", "\xe9", "\x80", std::string(1, '\0'), "***", "0049", "+49 ", "0034", "030", "\t"};
	std::mt19937 random(20240607);
	std::uniform_int_distribution<std::size_t> piece(0, pieces.size() - 1);
	std::uniform_int_distribution<int> length(0, 24);
	std::vector<std::string> inputs;
	for (int i = 0; i < count; ++i)
	{
		const int pieceCount = i % 100 == 0 ? 600 : length(random);
		std::string input;
		for (int p = 0; p < pieceCount; ++p)
			input += pieces[piece(random)];
		inputs.push_back(input);
	}
	return inputs;
}

using FacadeRobustnessTest = CanonicalSitesFixture;

TEST_F(FacadeRobustnessTest, SurvivesHostileNumbersAtEverySite)
{
	std::vector<std::string> inputs = adversarialInputs();
	const std::vector<std::string> random = randomInputs(3000);
	inputs.insert(inputs.end(), random.begin(), random.end());
	for (const char* name : {"Berlin", "BerlinDirect", "Unconfigured", "none"})
	{
		ZelDialRulesItem* item = site(name);
		for (std::size_t i = 0; i < inputs.size(); ++i)
		{
			const std::string& input = inputs[i];
			const std::string& pattern = inputs[(i * 7 + 3) % inputs.size()];
			// Half of the calls build their debug lines as well.
			Logger::m_Traces = i % 2 == 1;
			// The seed is fixed, so a site and an index replay a failure.
			SCOPED_TRACE(std::string(name) + " input #" + std::to_string(i));
			EXPECT_NO_THROW(rules()->makeCanonicalNumber(item, input, ""));
			EXPECT_NO_THROW(rules()->makeCanonicalNumber(item, input, pattern, true));
			EXPECT_NO_THROW(rules()->makePhoneNumber(item, input));
			EXPECT_NO_THROW(rules()->addExternalPrefix(item, input));
			EXPECT_NO_THROW(rules()->formatCanonicalNumber(input, pattern));
			EXPECT_NO_THROW(rules()->formatToGSMCanonicalNumber(input));
			EXPECT_NO_THROW({
				rules()->checkPhoneNumber(input);
				rules()->isPrefixNeeded(item, input);
				rules()->validNumber(input);
				rules()->extractCountryNumberFromCanonicalNumber(input);
				rules()->extractAreaCodeOrNatPrefixFromCanonicalNumber(input);
				rules()->extractExtensionFromCanonicalNumber(input);
				rules()->getCountryCode(input);
				rules()->getCountryName(input);
				rules()->getCountryCodeFromNumber(input);
			});
			// The unguarded operations may throw, but only what a host can catch as std::exception; anything
			// else escapes and fails the test.
			const std::function<void()> unguarded[] = {
				[&] { Poco::AutoPtr<ZelClid> clid(rules()->makeClid(item, input)); },
				[&] { rules()->makeDialableNumber(item, input); },
				[&] { rules()->makeGSMCanonicalNumber(item, input, i % 3 == 0); },
				[&] { rules()->generateDefaultCanonicalNumber(input, "DE", pattern); }};
			for (const std::function<void()>& operation : unguarded)
			{
				try
				{
					operation();
				}
				catch (const std::exception&)
				{
				}
			}
			LogCapture::clear();
		}
	}
}

} // namespace
