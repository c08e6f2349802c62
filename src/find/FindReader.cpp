#include "find/FindReader.h"

#include "notes/NoteFields.h"

namespace kalvora {

bool FindReader::takeKnown(NoteKind, const ListedFile& file) {
  const SearchedNote* const known = known_.find(file);
  if (known == nullptr) return false;
  found_.add(file.place, before_, *known);
  return true;
}

void FindReader::take(NoteKind kind, const ListedFile& file, AlarmNoteReader& note) {
  if (note.refused()) return;
  NoteFields fields = emptyFields(kind);
  for (std::wstring* const field : inFileOrder(fields)) *field = note.Czytaj_zmienna();
  found_.add(file.place, kind, withoutNuls(*inFileOrder(fields).back()));
}

}  // namespace kalvora
