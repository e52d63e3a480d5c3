// The SHA-256 of a file's bytes, by which a report says which export it is about. Of our own, because no
// library that both builds could take has it in Debian.
#pragma once

#include <istream>
#include <string>

namespace host {

// In lower case hexadecimal digits, of what is left of the stream.
std::string Sha256(std::istream& in);

} // namespace host
