// NumberingApi.h
// Export macro of libNumbering, included first by every public header.

#ifndef Numbering_NumberingApi_INCLUDED
#define Numbering_NumberingApi_INCLUDED

/// Marks a class or function as part of the library's exported interface. The library is built with hidden
/// visibility, so anything without this mark stays internal to libNumbering.so.
#define Numbering_API __attribute__((visibility("default")))

#endif // Numbering_NumberingApi_INCLUDED
