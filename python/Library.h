// Library.h
// The library's facade as the Python module shares it between threads.

#ifndef Numbering_Library_INCLUDED
#define Numbering_Library_INCLUDED

#include "numbering/ZelNumberingRules.h"

#include <mutex>
#include <shared_mutex>
#include <string>

namespace numbering {
namespace python {

/// Guards the facade so that Python threads may convert at once: the facade is created and warmed up (the
/// configuration read, every country's plan and dialable maker built) before any conversion runs beside
/// another, and it is reset only while none runs. Conversions hold the lock shared; creation, reset and the
/// trace switch hold it alone. Call these without the GIL: a log line written under the lock takes it.
class Library
{
public:
	/// Calls function(rules) with the warmed-up facade, which no other thread resets meanwhile, and returns
	/// what it returns.
	template <typename Function>
	static auto call(Function&& function)
	{
		const std::shared_lock<std::shared_mutex> lock = lockWarmedUp();
		return function(*ZelNumberingRules::getInstance());
	}

	/// Reads the files from directory from now on: resets the facade, which the next call creates again.
	static void setConfigDirectory(const std::string& directory);

	/// The directory the files are read from, ending with "/".
	static std::string configDirectory();

	/// Switches the library's debug lines on or off.
	static void setTraces(bool on);

	static bool traces();

private:
	/// The shared lock, taken once the facade exists and is warmed up.
	static std::shared_lock<std::shared_mutex> lockWarmedUp();

	/// Creates the facade and makes one phone number of every configured country.
	static void warmUp();

	static std::shared_mutex m_Mutex;
	static bool m_WarmedUp;
};

} // namespace python
} // namespace numbering

#endif // Numbering_Library_INCLUDED
