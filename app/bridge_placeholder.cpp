// The bridge's QObject adapters are added beside this file.
