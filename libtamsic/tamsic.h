/*
 * tamsic.h - the calling contract of the Tamsic simulation engine library
 * (libtamsic.so, tamsic.dll). Shared by the library and every front end.
 *
 * Texts. No export takes or returns a character pointer. A text crosses as an
 * array of 16-bit signed character codes, one per character, the code being
 * the character's byte in the Windows-1252 code page (0..255), with no
 * terminator: a pointer to the first code and the number of codes. An empty
 * text is sent as one code 0. The library reads codes -128..-1 as the bytes
 * 128..255 and any code above 255 as "?".
 *
 * Replies. Every export receives first a pointer to a TamsicVariant, the
 * result slot, and fills it with the codes of its reply text. The library
 * allocates the codes with malloc; the caller owns them after the call and
 * releases them with tamsicFreeVariant. The library does not look
 * at what the slot held before; pass a zeroed slot. An empty reply has count
 * 0 and codes NULL; if memory runs out the slot is left empty.
 *
 * A status reply begins with "Message" when a run or check ended normally,
 * with "Polish" for a function accepted by testFormula, and with "Error: "
 * and a one-line cause for every failure. No export shows a window, writes
 * to stdout or stderr, or lets an exception or abort escape; bad input of any
 * kind gives an "Error" reply. testFormula and formulaGraphValues may be
 * called from several threads at once.
 */
#ifndef TAMSIC_H
#define TAMSIC_H

#include <stdint.h>

#if defined(_WIN32)
#  if defined(TAMSIC_BUILDING_LIBRARY)
#    define TAMSIC_API __declspec(dllexport)
#  else
#    define TAMSIC_API __declspec(dllimport)
#  endif
#else
#  define TAMSIC_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* The result slot: `count` codes at `codes`, owned by the caller after the call. */
typedef struct TamsicVariant {
  int16_t* codes;
  int32_t count;
} TamsicVariant;

/* Releases the codes of a reply and empties the slot. NULL is ignored. */
TAMSIC_API void tamsicFreeVariant(TamsicVariant* result);

/*
 * Runs scenarios of a project file. `path`: the project file (a saved copy).
 * `reserved1`, `reserved2`: pass 0. `scenarios`: "{" + the scenario names,
 * separated by ", " + "}". `options`: the special-options string, with ";"
 * and the run mode ("+" resumed, "META" stepwise) appended when there is one.
 * Output files go to the current directory. Reply: "Message..." when the run
 * ended normally, else "Error: " and the cause.
 */
TAMSIC_API void tamsicsim(TamsicVariant* result, const int16_t* path, int32_t pathCount,
                          int32_t reserved1, int32_t reserved2, const int16_t* scenarios,
                          int32_t scenariosCount, const int16_t* options, int32_t optionsCount);

/*
 * Loads and checks one scenario and keeps it as the current scenario of
 * agedist, findpolyg, detGraphValues and formulaGraphValues. `text`: the
 * project file's path, "{" (optionally after one blank), the scenario's
 * number in the project (from 1) and "}". `flag` 1 also writes the input
 * report (.inp) and the deterministic report (.det) into the current
 * directory. Reply: "Message..." or "Error: ...".
 */
TAMSIC_API void tcheckin(TamsicVariant* result, const int16_t* text, int32_t count, int32_t flag);

/*
 * The stable age and sex distribution of the current scenario for a
 * population of `size`, whole numbers adding up to `size`. Reply: the
 * females by age class (1, 2, ...) separated by ";", then ":", then the
 * males by age class likewise; or "Error: ...".
 */
TAMSIC_API void agedist(TamsicVariant* result, int16_t size);

/*
 * The deterministic projection of N by year for the current scenario.
 * `text`: empty, or a tcheckin text naming the scenario to load first.
 * `years`: number of years to project (0 or less: the scenario's number of
 * years). Reply: N of year 0, 1, ... separated by ";", or "Error: ...".
 */
TAMSIC_API void detGraphValues(TamsicVariant* result, const int16_t* text, int32_t count,
                               int32_t years);

/*
 * Mate monopolization of the current scenario's population held at K in its
 * stable age distribution. `values`: [0] % of adult males in the breeding
 * pool, [1] % of adult males that sire young in a year, [2] mean young per
 * siring male, [3] the population's number (from 1; 0 for the first). The
 * three measures are equivalent: all are computed from the first one given
 * (greater than 0) other than the one at `index` (0..2). Polygamous males
 * are drawn with replacement, monogamous ones take one female each.
 * The library only reads `values`. Reply: the three measures and the
 * population's number separated by ";", or "Error: ..." (for example when
 * the measure cannot be reached, or for hermaphrodites).
 */
TAMSIC_API void findpolyg(TamsicVariant* result, int16_t index, const double* values);

/*
 * Checks a function as typed (one leading "=" is ignored). Reply: "Polish: "
 * and the function in prefix notation, tokens separated by blanks (unary
 * minus is NEG), or "Error: " and what is wrong "at character N", counting
 * from 1 in the text as sent. A file reference "file=NAME" is answered
 * "Polish: file=NAME"; the file itself is read when a scenario is run.
 */
TAMSIC_API void testFormula(TamsicVariant* result, const int16_t* formula, int32_t count);

/*
 * Values of a function over a range of one variable, for a graph.
 * `variable`: the variable on the x axis, by its place in the variable list
 * of the function editor, counted from 1:
 *    1 A   2 B   3 D   4 E   5 F   6 G   7 I   8 J   9 K  10 M  11 N  12 O
 *   13 P  14 Q  15 R  16 S  17 U  18 V  19 W  20 X  21 Y  22 Z  23 PP
 *   24 FF 25 GG 26 JJ 27 KK 28 MM 29 NN 30 II 31 VV 32 WW 33 XX 34 ZZ
 *   35..44 IS1..IS10  45..54 PS1..PS10  55 IMEAN 56 ITOT 57 IMIN 58 IMAX
 *   59..68 IIS1..IIS10  69..78 PPS1..PPS10  79 CAT 80 PARITY 81 ID 82 DAM
 *   83 SIRE 84 KIN 85 MATE 86 NMATES, and 87..96 GS1..GS10.
 * For a variable that takes arguments (FF(), KIN(), ...) every use of it
 * takes the x value whatever its arguments. E (a constant) cannot be chosen.
 * x runs from `from` in steps of `increment` (> 0) while x <= `to`, and for at
 * most `points` values when `points` > 0 (10000 at most in any case).
 * `population` (from 1; 0 means 1) is the population whose values the other
 * variables take: those of the current scenario (year 1), or when none is
 * loaded N = K = 100, A = 1, Y = 1, P = the population and all else 0.
 * RAND and NRAND draw from a stream with a fixed seed, so a graph is the same
 * each time. Reply: the values separated by ";", or "Error: ...".
 */
TAMSIC_API void formulaGraphValues(TamsicVariant* result, const int16_t* formula, int32_t count,
                                   int32_t variable, int32_t from, int32_t to, int32_t points,
                                   int32_t population, double increment);

/* Frees all engine state (the current scenario). Reply: "Message: closed". */
TAMSIC_API void tamsdllclose(TamsicVariant* result);

/* Closes the engine's own window; the library has none. Reply: "Message: closed". */
TAMSIC_API void tamsicWindowClose(TamsicVariant* result);

/* Progress of the run in progress: "done;total" iterations, "0;0" when none runs. */
TAMSIC_API void tamsicProgress(TamsicVariant* result);

/*
 * Asks the run in progress to stop after its current iteration; the reply of
 * tamsicsim then says so. Reply: "Message: cancel requested".
 */
TAMSIC_API void tamsicCancel(TamsicVariant* result);

/*
 * Joins the processes that a launcher (mpirun, srun) started together with
 * this one, when the library was built with MPI, so that the next tamsicsim
 * call, which each of them makes, runs the study once among them: each runs
 * a share of the iterations and rank 0 alone writes the files. A process
 * started alone stays alone and never initialises MPI. Reply: "RANK;SIZE"
 * ("0;1" alone), or "Error: ..." when the processes cannot work together
 * (for one, a library built without MPI).
 */
TAMSIC_API void tamsicTeamJoin(TamsicVariant* result);

/*
 * Leaves the team after the run (finalising MPI). A process that leaves
 * without having called tamsicsim tells the others at the start of their
 * run that it cannot take part; `reason` (may be empty) says why. Reply:
 * "Message: left".
 */
TAMSIC_API void tamsicTeamLeave(TamsicVariant* result, const int16_t* reason, int32_t count);

#ifdef __cplusplus
}
#endif

#endif /* TAMSIC_H */
