// The dialog of forty controls through the framework, and what else is measured on it.
#pragma once

// Opens the dialog, shows it, and closes it by Cancel.
void OpenAndCloseFramework();

// A dialog that stays open, for bursts of events.
class OpenFields {
  public:
    OpenFields();
    ~OpenFields();
    OpenFields(const OpenFields&) = delete;
    OpenFields& operator=(const OpenFields&) = delete;

    // Asks nRequests times for an update and serves the queue. Returns how often the update ran.
    int Burst(int nRequests);

  private:
    struct State;
    State* m_pState;
};
