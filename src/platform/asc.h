// Sender of text files over a serial port, without a protocol: line by line as the file holds them, with a
// pause behind each for the receiver to work. One file at a time.
#pragma once

#include <cstddef>
#include <string>

namespace zav {

// Binds the sender to an open port. `pause` in microseconds behind every line; the flag is 1: line ends go as
// they stand. Negative for anything else.
int ascInit(int port, int pause, int flag);
// Reads the file and readies it for sending; `laenge` is the length of the path. The two zeros are no limit
// of time and of characters. 0, or a negative error number of the system.
int ascStartTx(const std::string& pfad, int laenge, int zeitgrenze, int zeichengrenze);
// Sends the next line and waits its pause out. 1 when there is nothing more to send, after a failure too.
int ascDriver();
// How it ended or stands, as a German sentence, with a closing zero byte into puffer of n bytes. Its length.
int ascGetMessage(char* puffer, int n);

// 0, or the negative error number with which it ended.
int ascFehler();
// Bytes of the file, and those that have gone.
std::size_t ascLaenge();
std::size_t ascGesendet();

}  // namespace zav
