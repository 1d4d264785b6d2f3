#pragma once

// The calls of the system that a program makes for its files, under control: a library that stands
// between the program and the C library. A program that is linked with it, or that is started with
// it in LD_PRELOAD, makes its calls through it. Nothing is flushed to the device, which only a loss
// of power would show. Where a flush or a close fails, the end of the file is lost.

/// What becomes of the chosen call, if it is no error number.
enum OrvantaFault {
    OrvantaShortWrite = -1,  // half of the bytes are written; other calls go through
    OrvantaKill = -2,        // the process is killed before the call
    OrvantaKillInWrite = -3  // the process is killed when half of the bytes are written, or before
};

extern "C" {

/// From here on calls are counted, and the one with this number, from 1, meets the fault: an error
/// number that it fails with, or an OrvantaFault. A 0 for the call lets all go through.
void orvanta_faults_begin(int call, int fault);

/// Ends that. The number of calls since the beginning.
int orvanta_faults_end(void);

/// The name of a call since the last beginning.
const char* orvanta_faults_name(int call);

}  // extern "C"
