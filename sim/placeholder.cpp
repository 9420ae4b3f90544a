// Simulated host.
