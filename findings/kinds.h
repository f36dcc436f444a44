#pragma once

// The kinds of findings.

#include "SdkDebugDialog/Diagnosis.h"

namespace SdkDebugDialog {

// In the order of finding_kinds().
enum class Code {
  // What the reader refuses.
  incompleteCommand,
  unknownHead,
  unknownTarget,
  unknownConnection,
  unknownOption,
  misplacedOption,
  unknownKeyword,
  misplacedKeyword,
  invalidValue,
  missingValue,
  wordWithoutOption,
  loneDash,
  notInFile,
  connectionNotAdmitted,
  wrongCpuNumber,
  misalignedAddress,
  unsupportedFrequency,  // a warning where nothing checks it
  missingModule,
  unsupportedCable,
  writtenNotRead,
  // Files; errors where the reader refuses them.
  byteOrderMark,
  blankFirstLine,
  lineTooLong,
  carriageReturn,
  comment,
  furtherLines,
  notText,
  quotes,
  // Values that are not what they seem.
  notANumber,
  trailingCharacters,
  unitIgnored,
  octalNumber,
  negativeNumber,
  numberTooLarge,
  addressWithoutPort,
  // What has no effect.
  givenTwice,
  portBeforeType,
  besideEsn,
  doesNotApply,
  fpuFromDesign,
  notReached,
  skippedOption,
  noEffect,
  missingFrequency,
  // Writing.
  lostWhenWritten,
  notReadBack,
  cannotBeWritten,
  // The JTAG chain.
  invalidIdcode,
  shortInstructionRegister,
  repeatedDeviceNumber,
  deviceNumberGap,
  deviceOrder,
  noSuchDevice,
  idcodeTwoLengths,
  // The design, and other processors.
  noSuchProcessor,
  otherFamily,
  sharedCableChain,
  sharedCableFrequency,
  sameProcessor,
  // More than are listed.
  tooMany,
};

const FindingKind& kind_of(Code code);

}  // namespace SdkDebugDialog
