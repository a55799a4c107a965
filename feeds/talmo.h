#pragma once

#include <string>

namespace talmo {

// Starts the TALMO column table: row 0 with the eight column names, OSZLOP_DB = 8.
void GENERATE_TALMO_HEADER();

// Writes the TALMO table as PATH + "export/hu/talmo.xml", one <termek> per row after the header.
// Raises FileError when the file cannot be written.
void TALMO2XML();

}  // namespace talmo
