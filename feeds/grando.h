#pragma once

namespace talmo {

// Starts the Grando column table: row 0 with the ten column names, OSZLOP_DB = 10.
void GENERATE_GRANDO_HEADER();

// Writes the Grando table as PATH + "export/hu/grando.xml", one <product> per row after the
// header, warranty texts mapped to Grando's codes. Raises FileError when it cannot be written.
void GRANDO2XML();

}  // namespace talmo
