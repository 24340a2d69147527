// Serial ports. Ports count from 0; a number stands for a device file as told in platform/ports.h. Results
// are counts, or negative: the system's error number with its sign turned.
#pragma once

#include <string>

namespace zav {

// The port whose device file the user named himself (einstellungen.Com_geraet).
inline constexpr int sio_direkt = 8;
inline constexpr int sio_ports = 9;

// Port -1 sets the default for ports opened later, and only that is served: a port keeps its line from
// opening to closing. The master knows one line: code 9 = 115200 baud, no parity (0), one stop bit (0), eight
// data bits. Anything else is refused.
int SioBaud(int port, int code);
int SioParms(int port, int parity, int stop, int bits);

// Opens the port, for this program alone, raw and without flow control, with an empty receive queue. The
// queue sizes are met by any value: the system's queues are larger than a message or a reply. Where the
// driver offers low latency it is switched on until SioDone.
int SioReset(int port, int rxSize, int txSize);
int SioDone(int port);

int SioPuts(int port, const char* bytes, int n);
int SioPutc(int port, char byte);
// Takes up to n bytes that have come; gives their number.
int SioGets(int port, char* puffer, int n);
// Takes one byte, 0 to 255; negative when none waits.
int SioGetc(int port);
// Bytes waiting; negative when the device has vanished.
int SioRxQue(int port);
int SioRxClear(int port);
// Modem lines: 'S' sets, 'C' clears.
int SioDTR(int port, char c);
int SioRTS(int port, char c);

// Waits in the kernel until n bytes have come, at most ms milliseconds. Gives the number of bytes waiting, or
// a negative number at once when the device has vanished.
int SioWarten(int port, int n, int ms);

// Why the last SioReset failed, and what helps, as German sentences; "" after a good one.
const std::string& SioUrsache();

}  // namespace zav
