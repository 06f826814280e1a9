// NumberingApp.cpp

#include "NumberingApp.h"

#include "numbering/Logger.h"
#include "numbering/ZelNumberingConfig.h"
#include "numbering/ZelNumberingRules.h"

#include "ConfigurationCheck.h"
#include "ConfigurationLint.h"
#include "LintReport.h"
#include "LintTextWriter.h"
#include "NumberSource.h"
#include "ResultWriter.h"

#include "Poco/NumberParser.h"
#include "Poco/Path.h"
#include "Poco/Util/HelpFormatter.h"
#include "Poco/Util/IntValidator.h"
#include "Poco/Util/Option.h"
#include "Poco/Util/OptionSet.h"
#include "Poco/Util/RegExpValidator.h"

#include <exception>
#include <iostream>
#include <memory>

namespace numbering {
namespace tool {

namespace {

const int LONGEST_LENGTH = 99;

const char* const EXIT_STATUSES =
	"Exit status: 0 when every number converted, 1 when some gave an empty result, 2 for a "
	"usage error, 3 when the configuration could not be loaded. lint: 0 when it finds no error (warnings "
	"alone included), 1 when it finds errors, 3 when the directory holds no configuration file.";

Poco::Util::Option valueOption(const std::string& name, const std::string& argument, const std::string& description)
{
	return Poco::Util::Option(name, "", description).argument(argument).repeatable(false);
}

Poco::Util::Option lengthOption(const std::string& name, const std::string& description)
{
	return valueOption(name, "N", description).validator(new Poco::Util::IntValidator(0, LONGEST_LENGTH));
}

} // namespace

NumberingApp::NumberingApp()
{
	setUnixOptions(true);
}

int NumberingApp::usageError(const std::string& message)
{
	std::cerr << "numbering: " << message << "\nTry 'numbering --help' for more information.\n";
	return USAGE_ERROR;
}

void NumberingApp::defineOptions(Poco::Util::OptionSet& options)
{
	Application::defineOptions(options);
	options.addOption(Poco::Util::Option("help", "h", "show this help and exit"));
	options.addOption(Poco::Util::Option("version", "V", "show the version and exit"));
	options.addOption(valueOption("country", "CC", "the site's country code (ISO 3166 alpha-2, \"FR\")"));
	options.addOption(valueOption("ext-prefix", "DIGITS", "the exchange's external-line prefix"));
	options.addOption(lengthOption("local-length", "numbers shorter than N are internal"));
	options.addOption(valueOption("area-code", "LIST", "the site's area codes, comma-separated; the first is its own"));
	options.addOption(lengthOption("except-length", "length of the site's exception numbers"));
	options.addOption(valueOption("except-begin", "DIGITS", "beginning of the numbers dialled without prefix"));
	options.addOption(valueOption("config-dir", "DIR", "configuration directory (default: the library's)"));
	options.addOption(valueOption("pattern", "PATTERN", "display pattern of canonical numbers (default: the mask)"));
	options.addOption(valueOption("format", "FORMAT", "output format: text (default), tsv or json")
						  .validator(new Poco::Util::RegExpValidator("text|tsv|json")));
	options.addOption(Poco::Util::Option("traces", "", "write the library's debug and info lines to standard error"));
}

void NumberingApp::handleOption(const std::string& name, const std::string& value)
{
	Application::handleOption(name, value);
	if (name == "help")
		m_HelpRequested = true;
	else if (name == "version")
		m_VersionRequested = true;
	else if (name == "country")
		m_Site.setCountry(value);
	else if (name == "ext-prefix")
		m_Site.setExtPrefix(value);
	else if (name == "local-length")
		m_Site.setLocalLength(Poco::NumberParser::parse(value));
	else if (name == "area-code")
		m_Site.setAreaCodes(value);
	else if (name == "except-length")
		m_Site.setExceptLength(Poco::NumberParser::parse(value));
	else if (name == "except-begin")
		m_Site.setExceptBegin(value);
	else if (name == "config-dir")
		m_ConfigDirectory = value;
	else if (name == "pattern")
		m_Pattern = value;
	else if (name == "format")
		m_Format = value;
	else if (name == "traces")
		Logger::m_Traces = true;
	if (m_HelpRequested || m_VersionRequested) stopOptionsProcessing();
}

int NumberingApp::main(const std::vector<std::string>& args)
{
	if (m_HelpRequested)
	{
		displayHelp();
		return ALL_CONVERTED;
	}
	if (m_VersionRequested)
	{
		std::cout << "numbering " << NUMBERING_VERSION << '\n';
		return ALL_CONVERTED;
	}
	if (args.empty()) return usageError("missing command");
	try
	{
		const Command command(args.front());
		return execute(command, std::vector<std::string>(args.begin() + 1, args.end()));
	}
	catch (const Poco::NotFoundException& e)
	{
		return usageError(e.message());
	}
}

int NumberingApp::execute(const Command& command, const std::vector<std::string>& numbers)
{
	if (!command.takesNumbers() && !numbers.empty()) return usageError("the command takes no number");
	if (command.needsSite() && !m_Site.hasCountry()) return usageError("--country is required for this command");
	if (!m_ConfigDirectory.empty()) ZelNumberingConfig::setConfigDirectory(m_ConfigDirectory);
	if (command.isLint()) return lint();
	ZelNumberingRules& rules = *ZelNumberingRules::getInstance();
	const ConfigurationCheck check(installedSampleDirectory());
	// Cleaning a number is the one conversion that needs no configuration.
	if ((command.needsSite() || !command.takesNumbers()) && !check.loaded(rules))
	{
		std::cerr << check.diagnosis();
		return NO_CONFIGURATION;
	}
	std::unique_ptr<ZelDialRulesItem> site;
	try
	{
		if (command.needsSite()) site = m_Site.makeSite();
	}
	catch (const std::exception& e)
	{
		return usageError(e.what());
	}
	const std::unique_ptr<ResultWriter> writer = ResultWriter::create(m_Format, command.columns(), std::cout);
	if (!command.takesNumbers())
	{
		command.listCountries(rules, *writer);
		writer->finish();
		return ALL_CONVERTED;
	}
	bool allConverted = true;
	NumberSource source(numbers, std::cin);
	std::string number;
	while (source.next(number))
	{
		const Row row = command.convert(rules, site.get(), number, m_Pattern);
		allConverted = allConverted && row.converted;
		writer->write(row);
	}
	writer->finish();
	return allConverted ? ALL_CONVERTED : SOME_EMPTY;
}

int NumberingApp::lint()
{
	ConfigurationLint configuration(ZelNumberingConfig::getConfigDirectory());
	if (!configuration.foundAny())
	{
		std::cerr << ConfigurationCheck(installedSampleDirectory()).diagnosis();
		return NO_CONFIGURATION;
	}
	LintReport report;
	configuration.check(report);
	if (m_Site.hasCountry())
	{
		std::unique_ptr<ZelDialRulesItem> site;
		try
		{
			site = m_Site.makeSite();
		}
		catch (const std::exception& e)
		{
			return usageError(e.what());
		}
		configuration.checkRoundTrip(*ZelNumberingRules::getInstance(), *site, report);
	}
	const std::unique_ptr<ResultWriter> writer =
		m_Format == "text" ? std::make_unique<LintTextWriter>(LintReport::columns(), std::cout)
						   : ResultWriter::create(m_Format, LintReport::columns(), std::cout);
	report.write(*writer);
	return report.hasErrors() ? LINT_ERRORS : LINT_CLEAN;
}

std::string NumberingApp::installedSampleDirectory() const
{
	// The tool is installed in <prefix>/bin and the sample in <prefix>/share, whatever the prefix.
	Poco::Path directory(config().getString("application.dir"));
	directory.popDirectory();
	directory.append(Poco::Path(NUMBERING_SAMPLE_CONFIG_SUBDIR));
	return directory.toString();
}

void NumberingApp::displayHelp() const
{
	Poco::Util::HelpFormatter help(options());
	help.setCommand("numbering");
	help.setUsage("COMMAND [OPTIONS] [NUMBER...]");
	help.setHeader("Converts telephone numbers as the exchange's applications do, for the site described by the "
				   "options. Numbers come from the arguments or, when there are none, from standard input, one per "
				   "line.\n\nCommands:\n" +
				   Command::summary() + "\nOptions:");
	help.setFooter(EXIT_STATUSES);
	help.format(std::cout);
}

} // namespace tool
} // namespace numbering
