#ifndef VQC_CMD_APPLICATION_TOOLKIT_WORDS_H
#define VQC_CMD_APPLICATION_TOOLKIT_WORDS_H

namespace vqc {

/// Whether the command line has a word that the toolkit would take for an option of its own.
///
/// Where there is a display, the toolkit takes its options and their values out of the command line, wherever they
/// stand: before our options, between them, after the save file, even where -c, -C or -s would take the word as a name.
/// Only then do we read what is left; where there is no display, we read all of it. So one such word is enough to hand
/// the whole line to the editor program, which has the toolkit and asks for the display; even if it turns out to be a
/// batch run. A line without one reads the same with and without a display, and needs neither to be read.
///
/// The toolkit takes a word that is the whole of an option or begins just one of them: "-fn" and "-ti", but not "-f".
/// So it takes nothing that has only letters of our options: "-s" and "-x" each begin several. It takes no other
/// option, name or bare "-" either.
bool has_toolkit_words(int argc, char** argv);

}  // namespace vqc

#endif
