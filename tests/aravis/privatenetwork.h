#pragma once

/// Starts the program \a argv anew in a network of its own, where the user of the machine may set up what the
/// test needs. Returns in the new program, or at once where the system does not allow such a network.
void enterPrivateNetwork(char** argv);

/// Whether the program runs in its own network.
bool isInPrivateNetwork();
