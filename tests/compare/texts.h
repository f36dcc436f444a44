#pragma once

// Random texts for the readers: grammatical ones, and ones with mistakes.

#include <string>

#include "random.h"

// What a text starts with, and so which reader it is for.
enum class Start {
  command,  // a head
  ov,       // what follows a target
  ppc,
  arm,  // also r5 and dap
  odm,
  dcc,
  qmtc,
  vp,       // the target behind the head of the virtual platform
  ppcsim,   // what follows "ppc sim"
  options,  // general options
  cable,    // what follows an option
  configdevice,
  debugdevice,
  pfsl,
  modelsim,
  bscan,
  stub,  // the value of -comm, -port, -baud or -timeout
  jtag,  // options for cable and chain alone
};

std::string random_text(Random& random, Start start);

// A value for a text field: mostly short, at times empty, long, or with characters that no token can hold.
std::string random_field(Random& random);

// The name of an option for a software stub, at times another one or none.
std::string random_stub_option(Random& random);

// The content of an option file.
std::string random_file(Random& random);
