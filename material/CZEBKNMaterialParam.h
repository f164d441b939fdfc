// The material of an analysis, loaded once and held by every rank as its own copy.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/ZEBCom.h"
#include "platform/ZEBMatrEngine.h"

/// Loads a material from the engine on rank 0 and gives every rank an identical private copy of it.
///
/// Copies of this object share the records; destroying all of them is safe. A record that was once handed out stays
/// valid until this object and its copies are gone, also after another SetInput() or an
/// assignment.
class CZEBKNMaterialParam {
 public:
  CZEBKNMaterialParam();
  CZEBKNMaterialParam(const CZEBKNMaterialParam& other);
  ~CZEBKNMaterialParam();
  CZEBKNMaterialParam& operator=(const CZEBKNMaterialParam& other);

  /// Loads the material `name` and distributes it. Collective: every rank calls it, with its own `communicator` of the
  /// same run, which stays the caller's; null for a serial run. A further call replaces what the getters hand out.
  /// Always 1.
  ///
  /// A material that the engine does not know gives an empty record without test curves, a test curve that it does not
  /// have an empty one. A count that is negative or above 1,000,000, or whose array is missing, is taken as 0 on all
  /// ranks. Of each of these rank 0 prints one line on standard output. Texts are cut after 254 characters.
  int SetInput(std::string name, CZEBCom* communicator);

  /// The private copy, owned by this object; null before SetInput(). On ranks other than 0 the second to seventh text
  /// are empty: only the first is distributed.
  ZebMaterial* GetZebMaterial() const;

  /// Test curve `i`, counted from 0, owned by this object. Null for a negative `i`; at or above the number of curves a
  /// message is printed on standard output and the result is null.
  const ZEB_MTC* GetMtcData(int i) const;

 private:
  struct Record;

  void replaceRecord(std::shared_ptr<Record> next);
  int LoadFromEngine(const std::string& name);
  int CopyMaterialData(const ZebMaterial& source);
  int CopyMatParam(const ZebMatParam& source, int index);
  int CopyMtcParam(const ZEB_MTC& source, int index);
  int BroadMaterialData();
  int BroadMatParam(int index);
  int BroadMtcData();

  std::shared_ptr<Record> m_record;
  std::vector<std::shared_ptr<Record>> m_earlierRecords;  // once handed out, so kept
  CZEBCom* m_pCom;
  int m_nMtcCount;
};
