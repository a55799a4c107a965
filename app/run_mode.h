#pragma once

namespace talmo {

// Whether the run answers its lookups from the snapshot's memory (the default) or sends one
// statement per lookup as the tool always did: TALMO_SNAPSHOT=off in the environment chooses
// the latter, any other value or none the former. The feeds and the console are the same.
bool answers_from_snapshot();

}  // namespace talmo
