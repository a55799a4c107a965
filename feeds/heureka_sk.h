#pragma once

namespace talmo {

// Starts the Heureka.sk column table: row 0 with the fourteen element names, OSZLOP_DB = 14.
void GENERATE_HEUREKASK_HEADER();

// Writes the Heureka.sk table as PATH + "export/sk/heureka.xml", one <SHOPITEM> per row after
// the header. Raises FileError when the file cannot be written.
void HEUREKASK2XML();

}  // namespace talmo
