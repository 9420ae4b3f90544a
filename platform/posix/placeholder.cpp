// Native platform services.
