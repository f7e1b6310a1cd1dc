export interface Served {
  readonly address: string;
  stop(): Promise<void>;
}

export function serve(folder: string, port: number, sent?: (bytes: number) => void): Promise<Served>;
