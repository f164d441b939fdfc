// The moments during filling at which the filling solver writes a result file for the fill-to-cool hand-over.
#pragma once

#include <memory>
#include <vector>

/// Merges a default grid of output moments with the moments of the CMX file's `<FILL_OUTPUT_TIMES>` block.
///
/// Order of calls: SetDebugMode() if wanted, Input_Step1() once, Input_Step2() for each CMX moment, Output_Step1(),
/// then Output_Step2() for 1 to the count it gave. All results are status codes, 0 is success; nothing is thrown. In
/// debug mode every refused input and the result are printed to standard output, one line each.
///
/// At most 1,000,000 grid steps and 1,000,000 CMX moments are worked with: a finer grid is replaced by one of 1,000,000
/// steps over the same span, CMX moments with higher IDs are not kept. Input_Step1() prints one line that says so,
/// whatever the debug mode.
///
/// Copies share the arrays: a moment stored through one is seen by the other until either starts anew. Destroying all
/// of them is safe.
class COutput_F2C_MultiTiming {
 public:
  /// The scale on which moments are measured. Any other int may be cast to it: the caller's own scale, on which the
  /// grid spans the filling time and every CMX moment is accepted.
  enum FillOutputType : int {
    kSeconds = 1,         ///< Seconds of filling; CMX moments in (0, filling time].
    kPercent = 2,         ///< Percent; the grid spans 100, CMX moments in (0, 100].
    kPercentOfVolume = 3  ///< As kPercent.
  };

  COutput_F2C_MultiTiming();
  COutput_F2C_MultiTiming(const COutput_F2C_MultiTiming& other);
  ~COutput_F2C_MultiTiming();
  COutput_F2C_MultiTiming& operator=(const COutput_F2C_MultiTiming& other);

  /// Turns the debug prints on or off. Always 0.
  int SetDebugMode(bool on);

  /// Stores the settings and makes room for `cmxCount` moments, all 0.0; earlier CMX moments are gone.
  /// `fillingTime`: seconds, above 0. `splitNumber`: equal steps of the grid, 3 or more. `cmxCount`: 0 for none; a
  /// negative one is stored and means none. Returns -1 for a split number below 3, else -2 for a filling time not above
  /// 0. The settings are stored nevertheless, the CMX moments stay as they were.
  int Input_Step1(double fillingTime, int splitNumber, int cmxCount, FillOutputType type);

  /// Stores CMX moment `id`, 1 to the CMX count, measured as the type says. IDs never set hold 0.0, which ends the
  /// list. Returns 1, storing nothing, for a moment outside the type's range; 2 for an id that is below 1 and above the
  /// count. Any other id outside 1 to the count is accepted with 0 and has no effect.
  int Input_Step2(int id, double time);

  /// Merges grid and CMX moments and gives the number of entries. The CMX list is used up to its first moment that is
  /// not above 0. Returns 3 when it was cut before a moment that is not above its predecessor; the result is built from
  /// what is left, and a further call starts from what is left.
  /// The grid's last moment, the end of filling, is not among the entries. Without settings the count is -1.
  int Output_Step1(int& count);

  /// Gives entry `i`, 1 to the count: its moment, ascending, and its source: 0 for the grid, -1, -2, ... for the first,
  /// second, ... entry that stems from the CMX list. A CMX moment within 0.1 % of the span of a grid moment makes one
  /// entry with it, at the grid's moment. Returns 4, changing nothing, for any other `i`.
  int Output_Step2(int i, double& time, int& source) const;

 private:
  struct Schedule;

  int CreateTiming();
  int checkCMXTimes();
  Schedule mergeTimes() const;
  void storeResult(const Schedule& schedule);
  bool isInRange(double time) const;
  bool isPercent() const;

  double m_dFillingTime;
  int m_iDefaultSplitNumber;
  int m_iCMXTimeCount;
  std::shared_ptr<std::vector<double>> m_pdCMXTime;
  int m_iOutputCount;
  std::shared_ptr<std::vector<double>> m_pdOutputTime;
  std::shared_ptr<std::vector<int>> m_piOutputSource;
  bool m_bDebugMode;
  FillOutputType m_eOutputType;
};
