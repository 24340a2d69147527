// The serial port of a device server in the network, spoken to as RFC 2217 tells: Telnet with the option
// COM-PORT. Port n of a server listens on TCP port 4000 + n. Results are counts or handles, or negative: the
// system's error number with its sign turned.
#pragma once

#include <string>

namespace zav {

inline constexpr int nsio_erster_tcp_port = 4000;
inline constexpr int nsio_baud_115200 = 16;
inline constexpr int nsio_acht_bits = 3;  // no parity, one stop bit

// Flow control, to be added up.
enum Nsio_flusssteuerung { nsio_cts = 1, nsio_rts = 2, nsio_xonxoff_senden = 4, nsio_xonxoff_empfangen = 8 };

// Starts and stops the library; stopping closes what is still open.
int nsio_init();
int nsio_end();

// Opens port n (from 1) of the server and agrees on transparent bytes and on its control, within ms
// milliseconds of Timer(); the front end gets its turns meanwhile. The handle, at least 1. Negative when
// nobody answers or when the server cannot control its port.
int nsio_open(const std::string& host, int n, int ms);
int nsio_close(int port);

// Sets the line: codes as above, anything else is refused. Negative too when the server does not confirm it.
int nsio_ioctl(int port, int baud, int modus);
// 0 none; both XON/XOFF or both CTS and RTS.
int nsio_flowctrl(int port, int modus);
// Modem lines: 1 sets, 0 clears.
int nsio_DTR(int port, int v);
int nsio_RTS(int port, int v);

// Takes up to n bytes that have come; gives their number.
int nsio_read(int port, char* puffer, int n);
// Drops what has come.
int nsio_leeren(int port);
// Sends all n bytes; waits while the server asks to.
int nsio_write(int port, const char* bytes, int n);
// Waits in the kernel until a byte has come, at most ms real milliseconds. The number of bytes waiting, or
// negative once the server has closed.
int nsio_warten(int port, int ms);

}  // namespace zav
