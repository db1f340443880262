#pragma once
// A scenario note in a cell of the project file. The file cannot hold every
// character: "#" starts a comment, a double quote ends the value, ":" and ";"
// separate cells and rows, a back-quote and the bytes of "ü" and "ý" read
// back as ":" and ";", line breaks become blanks, blanks at the ends are cut,
// a cell reading "Empty" is empty, and the file is Windows-1252. A note is
// therefore kept in its cell with each such character written "%" and two
// hexadecimal digits per byte of its UTF-8 form ("#" is "%23", "ü" "%C3%BC",
// a letter outside Windows-1252 as its two to four bytes); "%" itself is "%25".
// Every other character stands as its Windows-1252 byte, so a note stays
// readable in the file, and a plain note of an older file, which holds no
// such escapes, reads as itself.
#include <cstddef>
#include <string>
#include <string_view>

#include "model/clsScenario.h"

namespace tamsic {

// The cell for a note given in UTF-8; the cell is Windows-1252, as records hold texts.
std::string EncodeNote(std::string_view utf8);

// The note in UTF-8. A "%" that does not start escapes of a whole UTF-8
// character stays as it is, so that "50%" or "%zz" in an older note survive.
std::string DecodeNote(std::string_view cell);

// A page's note as its cell holds it: entry 0 of the page's row of the notes
// table (the other entries are kept as they are); empty when the table is
// smaller, as in a file that holds fewer notes.
const std::string& NoteCell(const clsScenario& scenario, std::size_t page);
// Stores the cell, giving the table its 14 x 11 entries where it has fewer;
// answers whether the note changed.
bool SetNoteCell(clsScenario& scenario, std::size_t page, std::string cell);

}  // namespace tamsic
