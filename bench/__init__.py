"""What the core and the application take; see docs/performance.md."""
