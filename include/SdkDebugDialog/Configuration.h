// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The debug configuration of one processor as a value: copied, compared, changed, stored.
///
///     Design design(hardware);
///     Configuration now = Configuration::open(*design.find("cpu0"), "etc/qvt_cpu0.opt").value();
///     Configuration edited = now;                      // Cancel: forget the copy
///     if (auto set = edited.set("frequency", "12M"); !set) show(set.error().message);
///     for (const Difference& d : differences(now, edited)) ...
///     if (auto stored = edited.store(); !stored) show(stored.error().message);
///
/// Nothing needs to be released, and every error has a text. Different objects may be used in different threads at the
/// same time, also copies of one another.

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "SdkDebugDialog/Annotation.h"
#include "SdkDebugDialog/CableOption.h"
#include "SdkDebugDialog/Expected.h"
#include "SdkDebugDialog/Export.h"
#include "SdkDebugDialog/JtagOption.h"
#include "SdkDebugDialog/ProcessorInfo.h"
#include "SdkDebugDialog/Settings.h"

class HHSMHwManager;

/// Everything of the library. The interfaces of the surrounding tool suite are outside of it.
namespace SdkDebugDialog {

/// A processor of a design, or none. Copies share the hardware description.
class SDKDEBUGDIALOG_API Processor {
 public:
  /// No processor of a design: the text alone says which processor it is for.
  Processor() = default;

  /// Its instance name; empty for no processor of a design.
  const std::string& name() const { return m_identity.name; }
  /// As discovered, with the FPU that the hardware description tells; the other settings in it are the defaults.
  const ProcessorInfoImp& identity() const { return m_identity; }
  /// Null for no processor of a design.
  HHSMHwManager* hardware() const { return m_hardware.get(); }

 private:
  friend class Design;
  ProcessorInfoImp m_identity;
  std::shared_ptr<HHSMHwManager> m_hardware;
};

/// The processors of a hardware description, found once.
class SDKDEBUGDIALOG_API Design {
 public:
  /// The description is queried now and for each processor that is asked for; configurations do not query it. It must
  /// outlive the design and its processors. Exceptions of the description are passed on.
  explicit Design(HHSMHwManager& hardware);
  /// The same; the description is kept as long as it is needed.
  explicit Design(std::shared_ptr<HHSMHwManager> hardware);

  /// Every processor, debuggable or not, in the order of discovery.
  const std::vector<std::string>& names() const;
  /// Those that can be debugged.
  std::vector<Processor> processors() const;
  /// ErrorCode::noSuchProcessor, with the nearest name.
  Expected<Processor> find(std::string_view name) const;
  /// The first processor that has the family and the number of the connect command; one without a name if there is
  /// none, and for the targets odm, dcc, qmtc and dap. ErrorCode::notUnderstood.
  Expected<Processor> identify(std::string_view command) const;

 private:
  Processor processor_of(const ProcessorInfoImp& record) const;

  struct Content;
  std::shared_ptr<const Content> m_content;
};

/// A setting in one configuration.
/// Fields are added at its end, in a major version only.
struct SettingState {
  SettingValue value;                ///< at the moment
  SettingValue initial;              ///< the default in this configuration
  bool applies = true;               ///< whether it means anything in this configuration
  bool changeable = true;            ///< whether it can be set now
  std::string whyNot;                ///< why it does not apply, or may not be changed
  std::vector<std::string> choices;  ///< values accepted now, as text
  bool freeText = true;              ///< whether other values of its kind are accepted too
  bool written = false;              ///< whether it is in command()
  std::string whyNotWritten;         ///< empty if it is written
};

/// A setting that differs between two configurations.
/// Fields are added at its end, in a major version only.
struct Difference {
  const Setting* setting = nullptr;  ///< never null
  SettingValue before;               ///< in the first of them
  SettingValue after;                ///< in the second
};

/// Something that an edited text no longer has, or a setting that was not copied.
/// Fields are added at its end, in a major version only.
struct Loss {
  const Setting* setting = nullptr;  ///< null for words that set nothing
  std::string what;                  ///< "bscan USER3", "-quiet"
  std::string why;                   ///< the reason
};

/// A text after an edit.
/// Fields are added at its end, in a major version only.
struct Edit {
  std::string text;                     ///< the whole text
  bool anew = false;                    ///< written anew; otherwise every byte that needed no change is as it was
  std::vector<Difference> differences;  ///< the settings that have changed: those given, and those that follow
  std::vector<Loss> losses;             ///< what storing it loses
  std::string notReadBack;              ///< why the reader refuses it or reads it differently; empty if it is read back

  /// What is accepted and yet looks wrong about the settings that differ.
  std::vector<std::string> warnings;

  /// Whether nothing is lost and the text is read back.
  bool is_safe() const { return losses.empty() && notReadBack.empty(); }
};

/// A change of a setting: a value as text, or back to the default.
/// Fields are added at its end, in a major version only.
struct Change {
  std::string setting;     ///< the name of the setting
  std::string value;       ///< as text; see parse_value
  bool toDefault = false;  ///< back to the default; the value is not used
};

/// Whether to store even if something is lost or what is stored is not read back.
enum class OnLoss {
  refuse,  ///< ErrorCode::wouldLose; nothing is stored
  goOn,    ///< store it all the same
};

/// The settings of one processor, with the text that they were read from. Copies are independent.
class SDKDEBUGDIALOG_API Configuration {
 public:
  /// The defaults, with no text.
  explicit Configuration(Processor processor = {});

  /// Read from a text. ErrorCode::notUnderstood.
  static Expected<Configuration> read(Processor processor, std::string_view text, TextKind kind = TextKind::command);
  /// Read from an option file; the defaults if there is no such file, or nothing in it. A relative path is relative
  /// to the working directory. ErrorCode::notUnderstood, file.
  static Expected<Configuration> open(Processor processor, const std::string& path);

  /// The defaults, to be stored in place of a file that is there: the file is kept as it is now, understood or not, so
  /// that store() notices when it changes. ErrorCode::file.
  static Expected<Configuration> over(Processor processor, const std::string& path);

  /// An independent copy.
  Configuration(const Configuration& other);
  /// A configuration that was moved from can only be assigned to or destroyed.
  Configuration(Configuration&& other) noexcept;
  /// Becomes an independent copy.
  Configuration& operator=(const Configuration& other);
  /// The other one can afterwards only be assigned to or destroyed.
  Configuration& operator=(Configuration&& other) noexcept;
  ~Configuration();

  /// Equal: the same settings of the same processor, and the same text read and to be stored.
  friend SDKDEBUGDIALOG_API bool operator==(const Configuration& a, const Configuration& b);
  /// Not equal.
  friend bool operator!=(const Configuration& a, const Configuration& b) { return !(a == b); }

  /// @name Settings
  /// @{

  /// The value of a setting, whether or not it applies.
  SettingValue value(const Setting& setting) const;
  /// Value, default, choices and conditions of a setting.
  SettingState state(const Setting& setting) const;
  /// Of all settings at once, in the order of settings().
  std::vector<SettingState> states() const;

  /// Returns warnings: what is accepted although it looks wrong. A refusal changes nothing. A setting that does not
  /// apply is refused, unless it has another value than its default: then the text has words for it, which may be
  /// changed. ErrorCode::noSuchSetting, invalidValue, refused.
  Expected<std::vector<std::string>> set(const Setting& setting, const SettingValue& value);
  /// The same for a name, and a text as people type it; see parse_value.
  Expected<std::vector<std::string>> set(std::string_view name, std::string_view text);
  /// Back to the default; also where the setting does not apply. ErrorCode::refused for a setting that cannot be set.
  Expected<void> reset(const Setting& setting);
  /// All settings back to their defaults; words that set nothing stay in the text.
  void reset();

  /// What looks wrong about a setting, alone or together with other settings, although it is accepted.
  std::vector<std::string> warnings(const Setting& setting) const;

  /// Takes over the settings of another processor; returns those that it could not take, each with the reason.
  std::vector<Loss> copy_settings(const Configuration& from);

  /// @}

  /// @name Text
  /// @{

  /// The connect command that the engine writes for the settings. ErrorCode::cannotBeWritten.
  Expected<std::string> command() const;
  /// The text that was read, with the changes made in it. ErrorCode::cannotBeWritten.
  Expected<Edit> edited() const;
  /// The text of edited() alone. ErrorCode::cannotBeWritten.
  Expected<std::string> text() const;
  /// The same as the content of an option file; store() writes it. A text that was not read from an option file stays
  /// as it is if it means the same there; otherwise the command is written anew.
  Expected<Edit> for_file() const;
  /// The same with the command written anew; what this does not keep is listed as lost.
  Expected<Edit> written_anew() const;

  /// @}

  /// @name The option file
  /// @{

  /// The file that open() read or store() wrote last; empty if there is none.
  const std::string& path() const;
  /// Stores for_file() in the file that was read, which must be as it was then; a file that has the content already is
  /// not written. Returns what was stored, and the configuration is then that of the file.
  /// ErrorCode::cannotBeWritten, wouldLose, changedMeanwhile, file.
  Expected<Edit> store(OnLoss onLoss = OnLoss::refuse);
  /// The same in another file, which must not exist unless onLoss is goOn. For the file that was read, by whatever
  /// path, goOn concerns losses alone.
  Expected<Edit> store(const std::string& path, OnLoss onLoss = OnLoss::refuse);
  /// The same for an edit that this configuration returned before, such as written_anew().
  Expected<Edit> store(const Edit& edit, const std::string& path, OnLoss onLoss);

  /// @}

  /// @name The records that hold the settings
  /// @{

  /// The processor that the settings are for.
  const Processor& processor() const;
  /// Without a design, allowedConnections are those that the texts told; every connection of the family can be set.
  const ProcessorInfoImp& record() const;
  /// The cable.
  const CableOption& cable() const;
  /// The devices of the JTAG chain, in its order.
  const std::vector<JtagOption>& chain() const;
  /// Whether the connection goes through the processor's own JTAG pins.
  bool cpu_jtag() const;

  /// @}

 private:
  struct Content;
  std::unique_ptr<Content> m_content;
};

/// The settings that differ, those of the identity too, in the order of the catalogue.
SDKDEBUGDIALOG_API std::vector<Difference> differences(const Configuration& before, const Configuration& after);

/// Makes changes in a text: the words of the settings given change, a missing keyword joins its option, and a missing
/// option is put where the writer would put it, or at the first place where it reads right. Every other byte stays.
/// Where that is impossible the command is written anew; see Edit. Changes are applied in the order of the catalogue.
/// "cpu-jtag" can be switched off also in a text that the reader refuses for it alone. ErrorCode as Configuration::set
/// and Configuration::edited, and notUnderstood.
SDKDEBUGDIALOG_API Expected<Edit> edit(const Processor& processor, std::string_view text, TextKind kind,
                                       const std::vector<Change>& changes);

}  // namespace SdkDebugDialog
