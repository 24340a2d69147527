// TCP sockets. Results are counts or handles, or negative: the system's error number with its sign turned.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zav {

// Readies the sockets; negative on failure. This system needs no preparation.
int cscAttach();
// Ends their use: closes every socket that is still open.
void cscRelease();

// Connects to a host (a dotted address, whose numbers are decimal even with leading zeros, or a name). Gives
// up after that many seconds of Timer(); the front end gets its turns meanwhile. The handle, or negative on
// failure.
int cscClient(const std::string& host, int port, double sekunden = 10);
void cscClose(int socket);
// Why the last cscClient failed, as a German sentence; "" after a good one.
const std::string& cscUrsache();

// Sends all n bytes; negative on failure.
int cscPutData(int socket, const char* bytes, int n);
// Takes up to n bytes that have come; gives their number.
int cscGetData(int socket, char* puffer, int n);
// Waits in the kernel until `mindestens` bytes have come, at most ms milliseconds. The number of bytes
// waiting, zero when the time was over first, negative when the other side has closed first.
int cscAwaitData(int socket, int ms, int mindestens = 1);
// Bytes waiting; negative when none are and the other side has closed.
int cscReadSize(int socket);

// IPv4 address of a host name, first number in the highest byte; zero on failure. Gives up after ten seconds;
// the front end gets its turns meanwhile.
std::uint32_t cscResolve(const std::string& name);
// Dotted text of an address with a closing zero byte into puffer of n bytes. Its length, 0 when it does not
// fit.
int cscMakeDotted(std::uint32_t adresse, char* puffer, int n);
// The same of four numbers; 0 also when one is outside 0 to 255.
int cscMakeDotted4(int a, int b, int c, int d, char* puffer, int n);

}  // namespace zav
