#include "zavlink/programm.h"

int main(int argc, char** argv) { return zav::fenster::Programm(argc, argv); }
