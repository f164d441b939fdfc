// The analysis settings of a solid run, read from its CMX file.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "engine/BlockAccess.h"
#include "platform/ZEBCom.h"

class CZEBCMXInternalTool;
class CZEBCMX_Dyna_Forming;
class CZEBCMX_FILL_ADVANCED_HRSteady;
class CZEBCMX_FILL_ADVANCED_LONGFIBER;
class CZEBCMX_FILL_ADVANCED_MCIM;
class CZEBCMX_FILL_ADVANCED_SlipBC;
class CZEBCMX_FILL_OUTPUT_TIMES;
class CZEBCMX_PACK_OUTPUT_TIMES;
class CZEBCMX_SOLID_COOL;
class CZEBCMX_SOLID_FILL;
class CZEBCMX_SOLID_PACK;
class CZEBCMX_SOLID_VE;
class CZEBCMX_TASKMANAGER;

/// The blocks of a CMX file, with their defaults until setSolidFillBlock() reads a file.
///
/// Order of calls: setZEBCom() on every rank of a parallel run, setSolidFillBlock() on every rank, then the getters.
///
/// Copies share blocks and communicator; destroying all of them is safe. A block that was handed out is not owned by
/// the caller and stays valid until the object that handed it out is destroyed, also after an assignment to that
/// object.
class CZEBKNCMXCompParm {
 public:
  /// The argument is accepted for the hosts' sake and not used.
  explicit CZEBKNCMXCompParm(int unused);
  /// Shares the other's blocks.
  CZEBKNCMXCompParm(const CZEBKNCMXCompParm& other);
  virtual ~CZEBKNCMXCompParm();
  CZEBKNCMXCompParm& operator=(const CZEBKNCMXCompParm& other);

  /// Sets the communicator, which stays the caller's and must live as long as files are read. Returns 1; -1, changing
  /// nothing, for null. Without a communicator this process reads alone.
  int setZEBCom(CZEBCom* com);

  /// Reads a CMX file over what the blocks hold. Collective: rank 0 reads, every rank calls it with the same name.
  /// Always 1: a file that cannot be opened is read as an empty one. A list count that is negative or above 1,000,000
  /// is taken as 0, and rank 0 prints one line on standard output.
  int setSolidFillBlock(const std::string& fileName);

  CZEBCMX_SOLID_FILL* getSOLID_FILL() const;
  CZEBCMX_FILL_ADVANCED_SlipBC* getFILL_ADVANCED_SlipBC() const;
  CZEBCMX_FILL_ADVANCED_LONGFIBER* getFILL_ADVANCED_LONGFIBER() const;
  CZEBCMX_FILL_ADVANCED_HRSteady* getFILL_ADVANCED_HRSteady() const;
  CZEBCMX_SOLID_COOL* getSOLID_COOL() const;
  CZEBCMX_SOLID_VE* getSOLID_VE() const;
  CZEBCMX_SOLID_PACK* getSOLID_PACK() const;
  CZEBCMX_TASKMANAGER* get_TASKMANAGER() const;
  CZEBCMX_Dyna_Forming* getDyna_Forming() const;
  CZEBCMX_FILL_ADVANCED_MCIM* getFILL_ADVANCED_MCIM() const;
  CZEBCMX_FILL_OUTPUT_TIMES* getFILL_OUTPUT_TIMES() const;
  CZEBCMX_PACK_OUTPUT_TIMES* getPACK_OUTPUT_TIMES() const;

 private:
  friend struct zeb::Inspection;

  std::shared_ptr<CZEBCMXInternalTool> m_pTool;
  std::vector<std::shared_ptr<CZEBCMXInternalTool>> m_earlierTools;  // their blocks may have been handed out
};
